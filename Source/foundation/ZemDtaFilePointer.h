#pragma once

#include "ZemArrayTempl.h"
#include "ZemDataKey.h"
#include "ZemObj.h"
#include "ZemString.h"

#include <memory>

class CZemDataItem;

// The kinds of data sets: held in memory only, or backed by a data set file
// (format in ZemDataFile.h).
enum ZemDtaType : int { zemDtaNone = 0, zemDtaFile = 1, zemDtaMemory = 6 };

// Flags of a data set: the file may be written (and need not exist: a
// missing file opens as an empty data set), and is saved when the handle
// closes. Read access is always given; zemDtaRead says so.
enum : unsigned long { zemDtaRead = 1, zemDtaWrite = 2, zemDtaSaveOnClose = 8 };

// A handle on a whole data set: it owns the root node (none for an empty
// set) and, for a file-backed set, knows its file.
class CZemDtaFilePointer : public CZemObj {
public:
    CZemDtaFilePointer() = default;
    ~CZemDtaFilePointer() override;
    CZemDtaFilePointer(const CZemDtaFilePointer&) = delete;
    CZemDtaFilePointer& operator=(const CZemDtaFilePointer&) = delete;

    // The node at key, the root for a null key; null if absent.
    CZemDataItem* get(const CZemDataKey* key);
    // Stores a copy of item at key (the root for a null key), making the
    // root and directories on the way; a null item removes the node there.
    void set(const CZemDataItem* item, const CZemDataKey* key);
    // The keys of the directory at key (the root for null); false, with out
    // empty, if there is no directory there.
    bool dir(CZemArrayTempl<CZemDataKey>& out, const CZemDataKey* key);

    // Makes this a file-backed data set and loads it. False, with the set
    // unchanged, if the file is malformed, or missing without zemDtaWrite.
    bool open(const wchar_t* path, unsigned long flags);
    // Writes a file-backed set atomically; false for a memory set, without
    // zemDtaWrite, or if writing fails (the previous file then stays).
    bool save();

    ZemDtaType kind() const { return m_kind; }
    unsigned long flags() const { return m_flags; }
    const CZemString& path() const { return m_path; }

private:
    std::unique_ptr<CZemDataItem> m_root;
    ZemDtaType m_kind = zemDtaMemory;
    unsigned long m_flags = zemDtaRead | zemDtaWrite;
    CZemString m_path;
};

namespace ZEM {

// Opens a data set; the caller deletes the handle. zemDtaMemory: empty, or
// with a copy of item stored at key (the root for a null key). zemDtaFile:
// the file whose name is the text of key. Null for another kind or a file
// that does not open.
CZemDtaFilePointer* zemDtaOpen(ZemDtaType type, unsigned long flags, CZemDataKey* key, CZemDataItem* item);
// Opens a file-backed data set by its file name.
CZemDtaFilePointer* zemDtaOpenFile(const wchar_t* path, unsigned long flags);

}  // namespace ZEM
