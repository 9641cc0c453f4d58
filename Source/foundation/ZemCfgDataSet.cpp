#include "ZemCfgDataSet.h"

#include "ZemConfig.h"
#include "ZemDataItem.h"
#include "ZemSupportPath.h"

namespace ZEM {

std::unique_ptr<CZemDtaFilePointer> cfgDataSet(const wchar_t* key, const wchar_t* defaultFile) {
    const CZemDataItem* node = cfg_get(key);
    if (node && node->isDir()) {
        std::unique_ptr<CZemDtaFilePointer> data(new CZemDtaFilePointer);
        data->set(node, nullptr);
        return data;
    }
    CZemString name = defaultFile;
    if (node && !node->get(name, nullptr)) return nullptr;
    CZemString path;
    if (!fileFind(name, path)) return nullptr;
    return std::unique_ptr<CZemDtaFilePointer>(zemDtaOpenFile(path, zemDtaRead));
}

}  // namespace ZEM
