#include "ZemTextHost.h"

#include "ZemDataAccess.h"
#include "ZemDataItem.h"
#include "ZemDefaultHost.h"
#include "ZemMatrix3d.h"
#include "ZemResbufRead.h"
#include "ZemSmartResbuf.h"
#include "ZemTextLayout.h"

#include <cmath>

namespace {

struct Placement {
    CZemString text;
    CZemString align;
    double size = 1.0;
    CZemVector3d move;
    double rotation = 0.0;
};

// The directory list and the scale behind it; false for any other form.
bool readArguments(const resbuf* arguments, CZemDataItem& text, double& scale) {
    if (!arguments || arguments->restype != ZEM::RTLB) return false;
    const resbuf* inner = arguments->rbnext;
    if (!inner || inner->restype == ZEM::RTLE) return false;
    const resbuf* innerEnd = ZEM::rbSkip(inner);
    if (!innerEnd || innerEnd->restype != ZEM::RTLE) return false;
    const ZEM::CSmartResbuf directory(ZEM::rbCopy(inner, innerEnd));
    text.setLisp(directory);
    const resbuf* rb = innerEnd->rbnext;
    return text.isDir() && ZEM::rbRead(rb, scale) && !rb;
}

bool readPlacement(const CZemDataItem& text, double scale, Placement& out) {
    if (!ZEM::itemGet(&text, L"TXT", out.text)) return false;
    ZEM::itemGet(&text, L"ALIGN", out.align);
    double height = 1.0;
    CZemPoint3d insertion;
    ZEM::itemGet(&text, L"HEIGHT", height);
    ZEM::itemGet(&text, L"MOV", insertion);
    ZEM::itemGet(&text, L"ROT", out.rotation);
    out.size = height * scale;
    out.move = insertion.asVector() * scale;
    return std::isfinite(out.size) && out.size != 0.0 && std::isfinite(out.rotation) && std::isfinite(out.move.x) &&
           std::isfinite(out.move.y) && std::isfinite(out.move.z);
}

// Registers the layout with the default host when the library is loaded.
// Nothing else refers to this file, so the library's users are linked with
// this symbol required (Source/CMakeLists.txt).
bool registerLayout() {
    CZemDefaultHost::instance().hostFunctionSet(L"zem_text_to_regl", &zem_text_host_layout);
    return true;
}

}  // namespace

extern "C" {
extern const bool zem_text_host_hook;
}
const bool zem_text_host_hook = registerLayout();

int zem_text_host_layout(const resbuf* arguments, resbuf** result) {
    if (result) *result = nullptr;
    CZemDataItem text;
    double scale = 1.0;
    Placement placement;
    if (!readArguments(arguments, text, scale) || !readPlacement(text, scale, placement)) return ZEM::RTERROR;
    CZemTextLayout::RegionLists regions;
    CZemTextLayout(regions).place(placement.text, CZemPoint3d::kOrigin).align(placement.align);
    // A uniform scale and a turn keep every contour counter-clockwise.
    const CZemMatrix3d placing =
        CZemMatrix3d().setToSRM(CZemPoint3d(placement.size, placement.size, 1.0), placement.rotation, placement.move);
    for (int r = 0; r < regions.len(); ++r) {
        for (int c = 0; c < regions[r].len(); ++c) regions[r][c].transformBy(placing);
    }
    if (result) *result = ZEM::mkResbuf(regions);
    return ZEM::RTNORM;
}
