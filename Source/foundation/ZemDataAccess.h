#pragma once

#include "ZemArrayTempl.h"
#include "ZemConfig.h"
#include "ZemDataItem.h"
#include "ZemDataKey.h"
#include "ZemDtaFilePointer.h"
#include "ZemUnitTypes.h"

// Typed reads and writes of the data tree.
namespace ZEM {

// A 4 by 4 matrix (rows of four numbers) or a unit (-1 to 20) at key below
// item, or of item for a null key. False, and nothing written, if absent.
bool dataItemGet(const CZemDataItem* item, const CZemDataKey* key, double (*matrix)[4]);
bool dataItemGet(const CZemDataItem* item, const CZemDataKey* key, Zem::lUnit& unit);

// Writes a value at key below item, making directories on the way (a value
// node on the way becomes a directory), or into item itself for a null or
// empty key. False for a null item or an invalid key.
bool dataItemSet(CZemDataItem* item, const CZemDataKey* key, int value);
bool dataItemSet(CZemDataItem* item, const CZemDataKey* key, double value);
bool dataItemSet(CZemDataItem* item, const CZemDataKey* key, Zem::lUnit value);
bool dataItemSet(CZemDataItem* item, const CZemDataKey* key, const CZemPoint3d& value);
bool dataItemSet(CZemDataItem* item, const CZemDataKey* key, const CZemVector3d& value);
bool dataItemSet(CZemDataItem* item, const CZemDataKey* key, const CZemString& value);
bool dataItemSet(CZemDataItem* item, const CZemDataKey* key, const wchar_t* value);
bool dataItemSet(CZemDataItem* item, const CZemDataKey* key, const double (*matrix)[4]);
// Lists: under a key an empty list removes the entry; without a key the
// node itself takes the list (an empty one as RTNIL).
bool dataItemSet(CZemDataItem* item, const CZemDataKey* key, const CZemVertexArray& value);
bool dataItemSet(CZemDataItem* item, const CZemDataKey* key, const CZemArrayTempl<int>& value);
bool dataItemSet(CZemDataItem* item, const CZemDataKey* key, const CZemArrayTempl<CZemString>& value);
bool dataItemSet(CZemDataItem* item, const CZemDataKey* key, const CZemPoint3dArray& value);

// Reads from an item by a text key: false for a null item; a null text is
// the item itself.
template <class T>
bool itemGet(const CZemDataItem* item, const wchar_t* key, T& out) {
    if (!item) return false;
    const CZemDataKey path(key);
    return item->get(out, &path);
}
bool itemGet(const CZemDataItem* item, const wchar_t* key, double (*matrix)[4]);
bool itemGet(const CZemDataItem* item, const wchar_t* key, Zem::lUnit& unit);

// Reads a configuration value by path; false, out untouched, if absent.
template <class T>
bool cfgRead(const wchar_t* path, T& out) {
    const CZemDataItem* node = cfg_get(path);
    return node && node->get(out, nullptr);
}
bool cfgRead(const wchar_t* path, Zem::lUnit& unit);
bool cfgRead(const wchar_t* path, double (*matrix)[4]);

// The root of a data set, made as an empty directory if it has none; null
// for a null data set.
CZemDataItem* dtaRoot(CZemDtaFilePointer* data);

// Writes a value at a text key of a data set (the root for a null text).
template <class T>
bool dtaWrite(CZemDtaFilePointer* data, const wchar_t* key, const T& value) {
    CZemDataItem* root = dtaRoot(data);
    const CZemDataKey path(key);
    return root && dataItemSet(root, &path, value);
}

}  // namespace ZEM
