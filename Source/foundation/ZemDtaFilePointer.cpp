#include "ZemDtaFilePointer.h"

#include "ZemDataDir.h"
#include "ZemDataFile.h"
#include "ZemDataItem.h"
#include "ZemFileSystem.h"
#include "ZemTextUtil.h"

CZemDtaFilePointer::~CZemDtaFilePointer() {
    if (m_kind == zemDtaFile && (m_flags & zemDtaSaveOnClose)) save();
}

CZemDataItem* CZemDtaFilePointer::get(const CZemDataKey* key) { return m_root ? m_root->get(key) : nullptr; }

void CZemDtaFilePointer::set(const CZemDataItem* item, const CZemDataKey* key) {
    if (!key || (key->isEmpty() && key->isValid())) {
        m_root.reset(item ? new CZemDataItem(*item) : nullptr);
        if (m_root) m_root->setKey(CZemDataKey());
        return;
    }
    if (!item) {
        if (m_root && m_root->isDir()) m_root->getDir()->remove(key);
        return;
    }
    if (!m_root) m_root.reset(new CZemDataItem(CZemDataItem::typeDir));
    m_root->mkDir()->insert(key, new CZemDataItem(*item), 0);
}

bool CZemDtaFilePointer::dir(CZemArrayTempl<CZemDataKey>& out, const CZemDataKey* key) {
    out.setLogicalLength(0);
    const CZemDataItem* node = get(key);
    return node && node->isDir() && node->getDir()->getKeyList(out);
}

bool CZemDtaFilePointer::open(const wchar_t* path, unsigned long flags) {
    std::unique_ptr<CZemDataItem> root;
    const CZemDataFile file(path);
    if (ZEM::fsIsFile(path)) {
        if (!file.load(root)) return false;
    } else if (!(flags & zemDtaWrite) || !path || !*path) {
        ZEM::dump(L"%s: no such data set file\n", path ? path : L"");
        return false;
    }
    m_root.swap(root);
    m_kind = zemDtaFile;
    m_flags = flags;
    m_path = path;
    return true;
}

bool CZemDtaFilePointer::save() {
    if (m_kind != zemDtaFile || !(m_flags & zemDtaWrite)) return false;
    return CZemDataFile(m_path).save(m_root.get());
}

namespace ZEM {

CZemDtaFilePointer* zemDtaOpen(ZemDtaType type, unsigned long flags, CZemDataKey* key, CZemDataItem* item) {
    if (type == zemDtaFile) return zemDtaOpenFile(key ? static_cast<const wchar_t*>(key->text()) : nullptr, flags);
    if (type != zemDtaMemory) return nullptr;
    CZemDtaFilePointer* data = new CZemDtaFilePointer();
    if (item) data->set(item, key);
    return data;
}

CZemDtaFilePointer* zemDtaOpenFile(const wchar_t* path, unsigned long flags) {
    CZemDtaFilePointer* data = new CZemDtaFilePointer();
    if (!data->open(path, flags)) {
        delete data;
        return nullptr;
    }
    return data;
}

}  // namespace ZEM
