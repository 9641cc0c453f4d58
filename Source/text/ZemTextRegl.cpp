#include "ZemTextRegl.h"

#include "ZemApp.h"
#include "ZemDataItem.h"
#include "ZemResbufRead.h"
#include "ZemSmartResbuf.h"

bool zem_text_to_regl(const CZemDataItem* text, CZemArrayTempl<CZemArrayTempl<CZemVertexArray>>& regl,
                      double scale) {
    regl.setLogicalLength(0);
    if (!text) return false;
    ZEM::CSmartResbuf arguments(ZEM::rbToList(text->mkLisp()));
    arguments.append(ZEM::mkResbuf(scale, ZEM::RTREAL));
    resbuf* result = nullptr;
    const int status = zemAppPtr()->invokeHost(L"zem_text_to_regl", arguments, &result);
    // Only an answer that is a list (or nil, no regions) is read; a host may
    // hand back a chain even with a failed status, and it is freed as well.
    if (status == ZEM::RTNORM && result && (result->restype == ZEM::RTLB || result->restype == ZEM::RTNIL)) {
        resbuf* rb = result;
        ZEM::fromRb(regl, rb, 0);
    }
    zemRelRb(result);
    return !regl.isEmpty();
}
