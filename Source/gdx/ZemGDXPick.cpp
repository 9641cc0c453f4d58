#include "ZemGDX.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace {

// Drawing layers, bottom first: pictures, regions, every other kind, then
// reference items and highlighted items of any kind.
int drawingLayer(const CZemDisplayItem& item) {
    const int mode = zem_gdx_cmode(item.m_flags);
    if (mode == GDX_CM_HIGHLIGHT) return 4;
    if (mode == GDX_CM_REFER) return 3;
    if (item.m_type == GDX_PICTURE) return 0;
    if (item.m_type == GDX_REG) return 1;
    return 2;
}

const double kPickTolerance = 5.0;

bool finitePoint(const CZemPoint3d& p) { return std::isfinite(p.x) && std::isfinite(p.y) && std::isfinite(p.z); }

// A straight vertex whose box, widened by the tolerance, leaves out w cannot
// come within the tolerance: the nearest point lies in that box. The box is
// widened a little further, so that rounding never rejects a vertex that
// lotp would find in reach; whatever is not rejected is measured by lotp.
bool outOfReach(const CZemVertex& v, const CZemPoint3d& w) {
    if (!finitePoint(v.m_start) || !finitePoint(v.m_end) || !finitePoint(w)) return false;
    const double reach = kPickTolerance * (1.0 + 1e-9) +
                         1e-9 * (std::fabs(w.x) + std::fabs(w.y) + std::fabs(w.z));
    for (int c = 0; c < 3; ++c) {
        const double a = v.m_start[c], b = v.m_end[c];
        if (w[c] < std::min(a, b) - reach || w[c] > std::max(a, b) + reach) return true;
    }
    return false;
}

bool verticesNear(const CZemVertexArray& vl, const CZemPoint3d& w) {
    for (int k = 0; k < vl.len(); ++k) {
        if (vl[k].lotp(w).distanceTo(w) <= kPickTolerance) return true;
    }
    return false;
}

// A list with arcs goes through a transformed copy, which keeps the sense of
// its arcs under a mirroring matrix; straight vertices are transformed one by
// one and measured unless they are plainly out of reach.
bool vertexListNear(const CZemVertexArray& vl, const CZemMatrix3d& mtx, const CZemPoint3d& w) {
    for (int k = 0; k < vl.len(); ++k) {
        if (vl[k].m_bulge != 0.0) return verticesNear(vl.getTransformedCopy(mtx), w);
    }
    for (int k = 0; k < vl.len(); ++k) {
        const CZemVertex vertex(vl[k].m_start * mtx, vl[k].m_end * mtx, 0.0);
        if (!outOfReach(vertex, w) && vertex.lotp(w).distanceTo(w) <= kPickTolerance) return true;
    }
    return false;
}

// The outer contour of a region is taken with the writing index, so an empty
// region list gains one empty contour. Text and pictures are never picked.
bool itemNear(CZemDisplayItem& item, const CZemPoint3d& w) {
    switch (item.m_type) {
    case GDX_VL:
        return vertexListNear(item.m_vl, item.m_mtx, w);
    case GDX_REG:
        return vertexListNear(item.m_regl[0], item.m_mtx, w);
    case GDX_PT:
        return (item.m_pt * item.m_mtx).distanceTo(w) <= kPickTolerance;
    default:
        return false;
    }
}

}  // namespace

bool CZemGDX::displListSort() {
    if (lenGet() == 0) return false;
    reorder(drawingOrder());
    return true;
}

// A stable counting sort by layer: position k of the result names the item
// that goes to k.
CZemArrayTempl<int> CZemGDX::drawingOrder() const {
    const int n = lenGet();
    int start[6] = {0, 0, 0, 0, 0, 0};
    for (int i = 0; i < n; ++i) ++start[drawingLayer(itemAt(i)) + 1];
    for (int layer = 1; layer < 6; ++layer) start[layer] += start[layer - 1];
    CZemArrayTempl<int> order;
    order.setLogicalLength(n);
    for (int i = 0; i < n; ++i) order[start[drawingLayer(itemAt(i))]++] = i;
    return order;
}

// Position k receives the item that stood at order[k]. The items move
// bitwise, as their array moves them, so reordering copies no geometry. Each
// cycle of the permutation is walked once, with one item's bytes parked in a
// buffer.
void CZemGDX::reorder(const CZemArrayTempl<int>& order) {
    const int n = order.len();
    CZemArrayTempl<int> from(order);
    alignas(CZemDisplayItem) unsigned char parked[sizeof(CZemDisplayItem)];
    for (int first = 0; first < n; ++first) {
        if (from[first] < 0 || from[first] == first) continue;
        std::memcpy(parked, static_cast<void*>(&m_displayList[first]), sizeof(CZemDisplayItem));
        int to = first;
        while (from[to] != first) {
            const int source = from[to];
            std::memcpy(static_cast<void*>(&m_displayList[to]), static_cast<void*>(&m_displayList[source]),
                        sizeof(CZemDisplayItem));
            from[to] = -1;
            to = source;
        }
        std::memcpy(static_cast<void*>(&m_displayList[to]), parked, sizeof(CZemDisplayItem));
        from[to] = -1;
    }
}

// The list is left reversed, topmost item first: the first item in reach is
// the one drawn on top, however near another one lies.
int CZemGDX::imageItemGet(const CZemPoint3d& p) {
    if (lenGet() == 0) return -1;
    const CZemPoint3d w = imagePtWc(p);
    // Sorted and then reversed, in one move of each item.
    CZemArrayTempl<int> order = drawingOrder();
    order.revert();
    reorder(order);
    for (int i = 0; i < lenGet(); ++i) {
        CZemDisplayItem& item = m_displayList[i];
        if (!itemNear(item, w)) continue;
        if (item.m_stack.isEmpty()) item.m_stack.append(0);
        return item.m_stack[0];
    }
    return -1;
}
