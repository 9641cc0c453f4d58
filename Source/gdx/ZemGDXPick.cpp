#include "ZemGDX.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <vector>

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

// How far ahead the passes of a sort ask for items: the heads that the
// layers are read from, the items along a cycle of the reordering, and the
// start of the next cycle. Each is asked for to the second-level cache,
// which keeps what a dozen and more items bring in.
constexpr int kLayersAhead = 32;
constexpr int kStepsAhead = 16;
constexpr int kCyclesAhead = 4;

bool finitePoint(const CZemPoint3d& p) { return std::isfinite(p.x) && std::isfinite(p.y) && std::isfinite(p.z); }

// The target of a pick in list space, with the reach of the box test: the
// tolerance widened a little further, so that rounding never rejects a
// vertex that lotp would find in reach.
struct PickTarget {
    explicit PickTarget(const CZemPoint3d& p)
        : w(p),
          finite(finitePoint(p)),
          reach(kPickTolerance * (1.0 + 1e-9) + 1e-9 * (std::fabs(p.x) + std::fabs(p.y) + std::fabs(p.z))) {}

    CZemPoint3d w;
    bool finite;
    double reach;
};

// A straight segment from a to b whose box, widened by the reach, leaves out
// the target cannot come within the tolerance: the nearest point lies in
// that box. Segments or targets that are not finite are never rejected here;
// whatever is not rejected is measured by lotp.
bool outOfReach(const CZemPoint3d& a, const CZemPoint3d& b, const PickTarget& t) {
    for (int c = 0; c < 3; ++c) {
        if (t.w[c] < std::min(a[c], b[c]) - t.reach || t.w[c] > std::max(a[c], b[c]) + t.reach) {
            return t.finite && finitePoint(a) && finitePoint(b);
        }
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
bool vertexListNear(const CZemVertexArray& vl, const CZemMatrix3d& mtx, const PickTarget& t) {
    for (int k = 0; k < vl.len(); ++k) {
        if (vl[k].m_bulge != 0.0) return verticesNear(vl.getTransformedCopy(mtx), t.w);
    }
    for (int k = 0; k < vl.len(); ++k) {
        const CZemPoint3d a = vl[k].m_start * mtx, b = vl[k].m_end * mtx;
        if (outOfReach(a, b, t)) continue;
        if (CZemVertex(a, b, 0.0).lotp(t.w).distanceTo(t.w) <= kPickTolerance) return true;
    }
    return false;
}

// The outer contour of a region is taken with the writing index, so an empty
// region list gains one empty contour. Text and pictures are never picked.
bool itemNear(CZemDisplayItem& item, const PickTarget& t) {
    switch (item.m_type) {
    case GDX_VL:
        return vertexListNear(item.m_vl, item.m_mtx, t);
    case GDX_REG:
        return vertexListNear(item.m_regl[0], item.m_mtx, t);
    case GDX_PT:
        return (item.m_pt * item.m_mtx).distanceTo(t.w) <= kPickTolerance;
    default:
        return false;
    }
}

}  // namespace

bool CZemGDX::displListSort() {
    if (lenGet() == 0) return false;
    reorder(drawingOrder(false));
    return true;
}

// A stable counting sort by layer: position k of the result names the item
// that goes to k. Each item is looked at once; its layer is kept for the
// second pass. Top first, the order is the drawing order reversed.
CZemArrayTempl<int> CZemGDX::drawingOrder(bool topFirst) const {
    const int n = lenGet();
    std::vector<unsigned char> layers(static_cast<std::size_t>(n));
    int start[6] = {0, 0, 0, 0, 0, 0};
    for (int i = 0; i < n; ++i) {
        if (i + kLayersAhead < n) prefetchItemFar(i + kLayersAhead, 1);  // kind and flags
        layers[i] = static_cast<unsigned char>(drawingLayer(itemAt(i)));
        ++start[layers[i] + 1];
    }
    for (int layer = 1; layer < 6; ++layer) start[layer] += start[layer - 1];
    CZemArrayTempl<int> order;
    order.setLogicalLength(n);
    for (int i = 0; i < n; ++i) {
        const int k = start[layers[i]]++;
        order[topFirst ? n - 1 - k : k] = i;
    }
    return order;
}

// Position k receives the item that stood at order[k]. The items move
// bitwise, as their array moves them, so reordering copies no geometry. Each
// cycle of the permutation is walked once, with one item's bytes parked in a
// buffer. A cycle jumps about the list where the processor cannot follow, so
// the walk asks ahead of time for the item kStepsAhead steps further along
// its cycle and, for the short cycles of a reversal, for both items of the
// cycle that starts kCyclesAhead places on.
void CZemGDX::reorder(CZemArrayTempl<int> order) {
    const int n = order.len();
    if (n == 0) return;  // the writing index would grow both arrays
    int* from = &order[0];
    CZemDisplayItem* items = &m_displayList[0];
    alignas(CZemDisplayItem) unsigned char parked[sizeof(CZemDisplayItem)];
    for (int first = 0; first < n; ++first) {
        const int next = first + kCyclesAhead;
        if (next < n && from[next] >= 0 && from[next] != next) {
            prefetchItemFar(next);
            prefetchItemFar(from[next]);
        }
        if (from[first] < 0 || from[first] == first) continue;
        std::memcpy(parked, static_cast<void*>(items + first), sizeof(CZemDisplayItem));
        int to = first, ahead = from[first];
        for (int step = 0; step < kStepsAhead && ahead != first; ++step) ahead = from[ahead];
        while (from[to] != first) {
            const int source = from[to];
            if (ahead != first) {
                prefetchItemFar(ahead);
                ahead = from[ahead];
            }
            std::memcpy(static_cast<void*>(items + to), static_cast<void*>(items + source), sizeof(CZemDisplayItem));
            from[to] = -1;
            to = source;
        }
        std::memcpy(static_cast<void*>(items + to), parked, sizeof(CZemDisplayItem));
        from[to] = -1;
    }
}

// The list is left reversed, topmost item first: the first item in reach is
// the one drawn on top, however near another one lies.
int CZemGDX::imageItemGet(const CZemPoint3d& p) {
    if (lenGet() == 0) return -1;
    const PickTarget target(imagePtWc(p));
    // Sorted and then reversed, in one move of each item.
    reorder(drawingOrder(true));
    for (int i = 0; i < lenGet(); ++i) {
        prefetchAhead(i);
        CZemDisplayItem& item = m_displayList[i];
        if (!itemNear(item, target)) continue;
        if (item.m_stack.isEmpty()) item.m_stack.append(0);
        return item.m_stack[0];
    }
    return -1;
}
