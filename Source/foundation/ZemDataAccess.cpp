#include "ZemDataAccess.h"

#include "ZemDataDir.h"
#include "ZemResbuf.h"
#include "ZemResbufRead.h"

namespace {

bool noKey(const CZemDataKey* key) { return !key || (key->isEmpty() && key->isValid()); }

// Stores a chain, taken over, at key below item or in item itself.
bool storeChain(CZemDataItem* item, const CZemDataKey* key, resbuf* chain) {
    if (!item || (key && !key->isValid())) {
        zemRelRb(chain);
        return false;
    }
    if (noKey(key)) {
        item->setData(chain, false);
        return true;
    }
    CZemDataItem* value = new CZemDataItem();
    value->setData(chain, false);
    return item->mkDir()->insert(key, value, 0) != 0;
}

// The rule for lists: under a key an empty list (RTNIL) removes the entry.
bool storeList(CZemDataItem* item, const CZemDataKey* key, resbuf* chain) {
    if (!item || noKey(key) || !chain || chain->restype != ZEM::RTNIL) return storeChain(item, key, chain);
    zemRelRb(chain);
    if (!key->isValid()) return false;
    item->mkDir()->remove(key);
    return true;
}

}  // namespace

namespace ZEM {

bool dataItemGet(const CZemDataItem* item, const CZemDataKey* key, double (*matrix)[4]) {
    const CZemDataItem* node = item ? item->get(key) : nullptr;
    if (!node || node->isDir()) return false;
    const resbuf* rb = node->getResbuf();
    return rbReadMatrix(rb, matrix);
}

bool dataItemGet(const CZemDataItem* item, const CZemDataKey* key, Zem::lUnit& unit) {
    int value = 0;
    if (!item || !item->get(value, key) || value < Zem::unitCurrent || value > Zem::unitLast) return false;
    unit = static_cast<Zem::lUnit>(value);
    return true;
}

bool dataItemSet(CZemDataItem* item, const CZemDataKey* key, int value) {
    return storeChain(item, key, mkResbuf(value, value >= -32768 && value <= 32767 ? RTSHORT : RTLONG));
}

bool dataItemSet(CZemDataItem* item, const CZemDataKey* key, double value) {
    return storeChain(item, key, mkResbuf(value, RTREAL));
}

bool dataItemSet(CZemDataItem* item, const CZemDataKey* key, Zem::lUnit value) {
    return dataItemSet(item, key, static_cast<int>(value));
}

bool dataItemSet(CZemDataItem* item, const CZemDataKey* key, const CZemPoint3d& value) {
    return storeChain(item, key, mkResbuf(value));
}

bool dataItemSet(CZemDataItem* item, const CZemDataKey* key, const CZemVector3d& value) {
    return storeChain(item, key, mkResbuf(value));
}

bool dataItemSet(CZemDataItem* item, const CZemDataKey* key, const CZemString& value) {
    return storeChain(item, key, mkResbuf(static_cast<const wchar_t*>(value)));
}

bool dataItemSet(CZemDataItem* item, const CZemDataKey* key, const wchar_t* value) {
    return storeChain(item, key, mkResbuf(value));
}

bool dataItemSet(CZemDataItem* item, const CZemDataKey* key, const double (*matrix)[4]) {
    if (!matrix) return false;
    return storeChain(item, key, mkResbuf(matrix));
}

bool dataItemSet(CZemDataItem* item, const CZemDataKey* key, const CZemVertexArray& value) {
    return storeList(item, key, mkResbuf(value));
}

bool dataItemSet(CZemDataItem* item, const CZemDataKey* key, const CZemArrayTempl<int>& value) {
    return storeList(item, key, mkResbuf(value));
}

bool dataItemSet(CZemDataItem* item, const CZemDataKey* key, const CZemArrayTempl<CZemString>& value) {
    return storeList(item, key, mkResbuf(value));
}

bool dataItemSet(CZemDataItem* item, const CZemDataKey* key, const CZemPoint3dArray& value) {
    return storeList(item, key, mkResbuf(value));
}

bool itemGet(const CZemDataItem* item, const wchar_t* key, double (*matrix)[4]) {
    const CZemDataKey path(key);
    return dataItemGet(item, &path, matrix);
}

bool itemGet(const CZemDataItem* item, const wchar_t* key, Zem::lUnit& unit) {
    const CZemDataKey path(key);
    return dataItemGet(item, &path, unit);
}

bool cfgRead(const wchar_t* path, Zem::lUnit& unit) { return dataItemGet(cfg_get(path), nullptr, unit); }

bool cfgRead(const wchar_t* path, double (*matrix)[4]) { return dataItemGet(cfg_get(path), nullptr, matrix); }

CZemDataItem* dtaRoot(CZemDtaFilePointer* data) {
    if (!data) return nullptr;
    if (!data->get(nullptr)) {
        CZemDataItem root(CZemDataItem::typeDir);
        data->set(&root, nullptr);
    }
    return data->get(nullptr);
}

}  // namespace ZEM
