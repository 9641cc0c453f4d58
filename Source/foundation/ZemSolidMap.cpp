#include "ZemSolidMap.h"

#include "Zem_Solid.h"

#include <map>
#include <memory>

namespace {

std::map<int, std::unique_ptr<CZem_Solid>>& solidMap() {
    static std::map<int, std::unique_ptr<CZem_Solid>> solids;
    return solids;
}

}  // namespace

namespace ZEM {

bool newSolidFromMap(int& key) {
    auto& solids = solidMap();
    int free = 1;
    for (const auto& entry : solids) {
        if (entry.first != free) break;
        ++free;
    }
    solids[free].reset(new CZem_Solid);
    key = free;
    return true;
}

bool getSolidFromMap(CZem_Solid*& out, int key) {
    const auto found = solidMap().find(key);
    if (found == solidMap().end()) return false;
    out = found->second.get();
    return true;
}

bool removeSolidFromMap(int& key) {
    if (solidMap().erase(key) == 0) return false;
    key = 0;
    return true;
}

}  // namespace ZEM
