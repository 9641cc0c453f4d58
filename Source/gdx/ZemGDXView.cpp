#include "ZemGDX.h"

#include "ZemBase.h"
#include "ZemViewMatrix.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

bool finitePoint(const CZemPoint3d& p) { return std::isfinite(p.x) && std::isfinite(p.y) && std::isfinite(p.z); }

}  // namespace

// A full pass over the items. Each counted item leaves its bounds in lo and
// hi; a kind without geometry (a picture) leaves them as the item before did,
// or at the origin when it comes first, and that is what gets folded in.
// Consecutive items with the same matrices share one transform.
bool CZemGDX::projMtxSet(const CZemMatrix3d& m) {
    m_projMtx = m;
    m_extMin = m_extMax = CZemPoint3d();
    const CZemMatrix3d directionProj = m_viewDirectionMtx * m_projMtx;
    CZemMatrix3d lastMtx, lastExtMtx, t = directionProj;
    CZemPoint3d lo, hi;
    int counted = 0;
    for (int i = 0; i < lenGet(); ++i) {
        prefetchAhead(i);
        CZemDisplayItem& item = m_displayList[i];
        if (item.m_flags & GDX_NOEXT) continue;
        if (++counted == 1 || !(item.m_mtx == lastMtx) || !(item.m_extMtx == lastExtMtx)) {
            lastMtx = item.m_mtx;
            lastExtMtx = item.m_extMtx;
            t = directionProj * (item.m_extMtx * item.m_mtx);
        }
        itemBounds(item, t, lo, hi);
        if (counted == 1) {
            m_extMin = lo;
            m_extMax = hi;
        } else {
            m_extMin = ZEM::p_min(m_extMin, lo);
            m_extMax = ZEM::p_max(m_extMax, hi);
        }
    }
    return true;
}

// Region and text bounds come from outer contours only. The outer contour of
// a region is taken with the writing index, so an empty region list gains
// one empty contour. Of a text, the first part gives all three coordinates
// and the further parts widen x and y only.
void CZemGDX::itemBounds(CZemDisplayItem& item, const CZemMatrix3d& t, CZemPoint3d& lo, CZemPoint3d& hi) {
    switch (item.m_type) {
    case GDX_VL:
        vertexListBounds(item.m_vl, t, lo, hi);
        break;
    case GDX_PT:
        lo = hi = item.m_pt * t;
        break;
    case GDX_REG:
        vertexListBounds(item.m_regl[0], t, lo, hi);
        break;
    case GDX_TXT:
        for (int k = 0; k < item.m_txtRegl.len(); ++k) {
            const CZemArrayTempl<CZemVertexArray>& part = item.m_txtRegl[k];
            CZemPoint3d partLo, partHi;
            vertexListBounds(part[0], t, partLo, partHi);
            if (k == 0) {
                lo = partLo;
                hi = partHi;
                continue;
            }
            lo.set(std::min(lo.x, partLo.x), std::min(lo.y, partLo.y), lo.z);
            hi.set(std::max(hi.x, partHi.x), std::max(hi.y, partHi.y), hi.z);
        }
        break;
    default:
        break;
    }
}

// The extents of vl transformed by t. A straight list with finite points has
// the box of its transformed end points, which needs no transformed copy;
// lists with arcs or points that are not finite go through one. An empty
// list leaves lo and hi as they are.
void CZemGDX::vertexListBounds(const CZemVertexArray& vl, const CZemMatrix3d& t, CZemPoint3d& lo, CZemPoint3d& hi) {
    if (vl.len() == 0) return;
    double min[3] = {0.0, 0.0, 0.0}, max[3] = {0.0, 0.0, 0.0};
    for (int k = 0; k < vl.len(); ++k) {
        const CZemVertex& v = vl[k];
        const CZemPoint3d a = v.m_start * t, b = v.m_end * t;
        if (v.m_bulge != 0.0 || !finitePoint(a) || !finitePoint(b)) {
            vl.getTransformedCopy(t).extents(lo, hi);
            return;
        }
        for (int c = 0; c < 3; ++c) {
            const double low = std::min(a[c], b[c]), high = std::max(a[c], b[c]);
            min[c] = k == 0 ? low : std::min(min[c], low);
            max[c] = k == 0 ? high : std::max(max[c], high);
        }
    }
    lo.set(min[0], min[1], min[2]);
    hi.set(max[0], max[1], max[2]);
}

bool CZemGDX::viewMtxSet(const CZemMatrix3d& m) {
    m_viewMtx = m;
    return true;
}

bool CZemGDX::zoomMtxSet(const CZemMatrix3d& m) {
    m_zoomMtx = m;
    return true;
}

bool CZemGDX::viewDirectionMtxSet(const CZemMatrix3d& m) {
    m_viewDirectionMtx = m;
    return projMtxSet(m_projMtx);
}

bool CZemGDX::viewDirectionHvcSet(const CZemVector3d& v) {
    m_viewDirectionMtx = ZEM::g_mtx_view(v, CZemPoint3d::kOrigin, true);
    return projMtxSet(m_projMtx);
}

bool CZemGDX::viewDirectionSet(CZemString word) {
    const CZemVector3d v = zem_gdx_view_vdir_get(word);
    if (v == CZemVector3d()) return false;
    return viewDirectionHvcSet(v);
}

bool CZemGDX::extmaxGet(CZemPoint3d& min, CZemPoint3d& max) const {
    min = m_extMin;
    max = m_extMax;
    return true;
}

// The working corners start as an empty box (+max, -max), so a matching item
// without geometry folds in nothing until an item before it left bounds.
bool CZemGDX::extmaxGet(const CZemArrayTempl<int>& q, CZemPoint3d& min, CZemPoint3d& max) const {
    const double big = std::numeric_limits<double>::max();
    CZemPoint3d lo(big, big, big), hi(-big, -big, -big);
    const CZemArrayTempl<int> numbers = StackToItemNr(q);
    for (int k = 0; k < numbers.len(); ++k) {
        const CZemDisplayItem& item = itemAt(numbers[k]);
        const CZemMatrix3d t = m_projMtx * item.m_mtx;
        if (item.m_type == GDX_VL) vertexListBounds(item.m_vl, t, lo, hi);
        if (item.m_type == GDX_REG) vertexListBounds(item.m_regl[0], t, lo, hi);
        if (item.m_type == GDX_PT) lo = hi = item.m_pt * t;
        min = ZEM::p_min(min, lo);
        max = ZEM::p_max(max, hi);
    }
    return !numbers.isEmpty();
}

bool CZemGDX::extMaxViewSet(const CZemPoint3d& min, const CZemPoint3d& max) {
    m_extViewMin = min;
    m_extViewMax = max;
    return true;
}

bool CZemGDX::extMaxViewSet() { return extMaxViewSet(m_extMin, m_extMax); }

bool CZemGDX::extMaxViewGet(CZemPoint3d& min, CZemPoint3d& max) const {
    const bool noView = m_extViewMin == m_extViewMax;
    min = noView ? m_extMin : m_extViewMin;
    max = noView ? m_extMax : m_extViewMax;
    return true;
}

CZemPoint3d CZemGDX::imagePtWc(const CZemPoint3d& p) {
    const CZemMatrix3d back =
        m_viewDirectionMtx.inverse() * m_viewMtx.inverse() * m_projMtx.inverse() * m_zoomMtx.inverse();
    return p * back;
}
