#pragma once

#include "ZemArrayTempl.h"
#include "ZemDataKey.h"
#include "ZemObj.h"
#include "ZemPoint3d.h"
#include "ZemPoint3dArray.h"
#include "ZemString.h"
#include "ZemVector3d.h"
#include "ZemVertexArray.h"

struct resbuf;
class CZemDataDir;

// A node of the data tree: a value held as a result chain, or a directory of
// further nodes under keys. Copies are deep, with all children; assignment
// keeps the key under which the assigned node stands.
class CZemDataItem : public CZemObj {
public:
    enum type { typeValue = 0, typeDir = 1 };

    CZemDataItem() = default;
    explicit CZemDataItem(type kind);
    CZemDataItem(const CZemDataItem& other);
    CZemDataItem& operator=(const CZemDataItem& other);
    ~CZemDataItem() override;

    // The value at key below this node, or of this node for a null or empty
    // key. False, with out untouched, if there is none or it does not
    // convert: numbers read as numbers (whole ones as integers), RTT and RTNIL
    // as booleans, RTSTR and RTDXF0 as strings, points as vectors too, and
    // the lists as written by ZEM::mkResbuf.
    bool get(int& out, const CZemDataKey* key) const;
    bool get(unsigned long& out, const CZemDataKey* key) const;
    bool get(double& out, const CZemDataKey* key) const;
    bool get(bool& out, const CZemDataKey* key) const;
    bool get(CZemString& out, const CZemDataKey* key) const;
    bool get(CZemPoint3d& out, const CZemDataKey* key) const;
    bool get(CZemVector3d& out, const CZemDataKey* key) const;
    bool get(CZemVertexArray& out, const CZemDataKey* key) const;
    bool get(CZemPoint3dArray& out, const CZemDataKey* key) const;
    bool get(CZemArrayTempl<int>& out, const CZemDataKey* key) const;
    bool get(CZemArrayTempl<CZemString>& out, const CZemDataKey* key) const;

    // The node at key (this node for a null or empty key); null if absent,
    // also below a value node. The tree keeps ownership.
    CZemDataItem* get(const CZemDataKey* key);
    const CZemDataItem* get(const CZemDataKey* key) const;

    bool isDir() const { return m_dir != nullptr; }
    CZemDataDir* getDir() const { return m_dir; }
    // Makes the node a directory (dropping a value it held); returns the table.
    CZemDataDir* mkDir();
    // The key under which the node stands in its directory; empty for a root.
    CZemDataKey* getKey() { return &m_key; }
    const CZemDataKey& key() const { return m_key; }
    void setKey(const CZemDataKey& key) { m_key = key; }

    // Makes the node a value holding rb: taken over for copy false, copied
    // for copy true. Returns 1.
    int setData(resbuf* rb, bool copy);
    // The value chain, still owned by the node; null for a directory.
    resbuf* getResbuf() const { return m_value; }

    // The node as a new chain for the host: a value as a copy of its chain
    // (RTNIL if it holds none), a directory as a list of entries
    // (key value...), each key an RTSTR, RTDXF0, RTSHORT or RTLONG node.
    resbuf* mkLisp() const;
    // The reverse of mkLisp: a chain in the directory form becomes a
    // directory (nested ones too), any other chain a value. Replaces the node.
    void setLisp(const resbuf* chain);

    // Same kind, same value chains, same keys (code and spelling) in the same order.
    bool operator==(const CZemDataItem& other) const;
    bool operator!=(const CZemDataItem& other) const { return !(*this == other); }

private:
    template <class T>
    bool readAs(T& out, const CZemDataKey* key) const;
    void clear();

    resbuf* m_value = nullptr;
    CZemDataDir* m_dir = nullptr;
    CZemDataKey m_key;
};
