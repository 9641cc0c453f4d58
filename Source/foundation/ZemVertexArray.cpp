#include "ZemVertexArray.h"

#include "ZemArc.h"
#include "ZemBase.h"
#include "ZemGeomTolerance.h"
#include "ZemIntersector.h"
#include "ZemMatrix3d.h"
#include "ZemPlaneView.h"

#include <cmath>

namespace {

bool meets(const CZemPoint3d& a, const CZemPoint3d& b) { return a.distanceTo(b) <= ZEM::kDistTol; }

bool isFiniteVector(const CZemVector3d& v) { return std::isfinite(v.x) && std::isfinite(v.y) && std::isfinite(v.z); }

}  // namespace

CZemVertexArray::CZemVertexArray(const CZemVertex& vertex) { append(vertex); }

CZemVertexArray& CZemVertexArray::append(const CZemVertex& vertex) {
    appendItem(vertex);
    return *this;
}

CZemVertexArray& CZemVertexArray::operator+=(const CZemVertexArray& other) {
    const CZemVertexArray copy(other);  // other may be this very list
    for (int k = 0; k < copy.len(); ++k) appendItem(copy[k]);
    return *this;
}

CZemVertexArray& CZemVertexArray::setNormal(const CZemVector3d& normal) {
    m_normal = normal;
    return *this;
}

bool CZemVertexArray::isClosed() const { return len() > 0 && meets(m_items[-1].m_end, m_items[0].m_start); }

bool CZemVertexArray::isContinuous() const {
    for (int k = 1; k < len(); ++k) {
        if (!meets(m_items[k - 1].m_end, m_items[k].m_start)) return false;
    }
    return true;
}

CZemVertexArray& CZemVertexArray::revert() {
    revertItems();
    for (int k = 0; k < len(); ++k) {
        CZemVertex& v = m_items[k];
        const CZemPoint3d start = v.m_start;
        v.m_start = v.m_end;
        v.m_end = start;
        if (v.m_bulge != 0.0) v.m_bulge = -v.m_bulge;
    }
    return *this;
}

// The normal is carried as the plane's two axes: their images span the new
// plane, and their cross product keeps the turning sense of the arcs.
CZemVertexArray& CZemVertexArray::transformBy(const double (*m)[4]) {
    for (int k = 0; k < len(); ++k) m_items[k].transformBy(m);
    CZemMatrix3d frame;
    frame.setToPlaneToWorld(m_normal);
    const double (&f)[4][4] = frame;
    const CZemVector3d u = CZemVector3d(f[0][0], f[1][0], f[2][0]) * m;
    const CZemVector3d v = CZemVector3d(f[0][1], f[1][1], f[2][1]) * m;
    CZemVector3d n = u * v;
    if (!isFiniteVector(n) || n.normalize().abs() == 0.0) return *this;
    if (std::fabs(n.x) <= ZEM::kAxisTol && std::fabs(n.y) <= ZEM::kAxisTol && n.z < 0.0) {
        n = CZemVector3d::kZAxis;
        for (int k = 0; k < len(); ++k) {
            if (m_items[k].m_bulge != 0.0) m_items[k].m_bulge = -m_items[k].m_bulge;
        }
    }
    m_normal = n;
    return *this;
}

CZemVertexArray CZemVertexArray::getTransformedCopy(const double (*m)[4]) const {
    CZemVertexArray copy(*this);
    copy.transformBy(m);
    return copy;
}

CZemVertexArray& CZemVertexArray::move(const CZemVector3d& offset) {
    for (int k = 0; k < len(); ++k) {
        m_items[k].m_start += offset;
        m_items[k].m_end += offset;
    }
    return *this;
}

// An arc's extreme points along a world axis k lie where the axis's share of
// r (cos a U + sin a V) peaks, U and V being the plane's axes in the world:
// at a = atan2(V_k, U_k) and opposite it.
bool CZemVertexArray::extents(CZemPoint3d& min, CZemPoint3d& max) const {
    const CZemPlaneView view(*this);
    const double (&w)[4][4] = view.toWorldMatrix();
    bool found = false;
    for (int i = 0; i < len(); ++i) {
        const CZemArc arc(view.planar()[i]);
        if (!arc.isFinite()) continue;
        const CZemVertex& v = m_items[i];
        if (!found) min = max = v.m_start;
        found = true;
        min = ZEM::p_min(ZEM::p_min(min, v.m_start), v.m_end);
        max = ZEM::p_max(ZEM::p_max(max, v.m_start), v.m_end);
        if (!arc.isArc()) continue;
        for (int k = 0; k < 3; ++k) {
            const double a = std::atan2(w[k][1], w[k][0]);
            for (const double angle : {a, a + 3.141592653589793}) {
                const double t = arc.paramOfAngle(angle, 0.0);
                if (t < 0.0) continue;
                const CZemPoint3d p = view.toWorld(arc.pointAt(t));
                min = ZEM::p_min(min, p);
                max = ZEM::p_max(max, p);
            }
        }
    }
    return found;
}

CZemPoint3dArray CZemVertexArray::pts(bool flatten, double tolerance) const {
    CZemPoint3dArray out;
    const CZemPlaneView view(*this);
    for (int i = 0; i < len(); ++i) {
        const CZemArc arc(view.planar()[i]);
        if (!arc.isFinite()) continue;
        const CZemVertex& v = m_items[i];
        if (out.len() == 0 || !meets(out[-1], v.m_start)) out.append(v.m_start);
        if (flatten && arc.isArc()) {
            const int n = arc.chordCount(tolerance);
            for (int j = 1; j < n; ++j) out.append(view.toWorld(arc.pointAt(static_cast<double>(j) / n)));
        }
        if (!meets(out[-1], v.m_end)) out.append(v.m_end);
    }
    return out;
}

CZemVertexArray& CZemVertexArray::fromPoints(const CZemPoint3dArray& points, bool closed) {
    setLogicalLength(0);
    if (points.len() == 0) return *this;
    CZemPoint3d last = points[0];
    for (int k = 1; k < points.len(); ++k) {
        if (meets(points[k], last)) continue;
        append(CZemVertex(last, points[k], 0.0));
        last = points[k];
    }
    if (closed && len() > 0 && !meets(last, points[0])) append(CZemVertex(last, points[0], 0.0));
    return *this;
}

CZemVertexArray& CZemVertexArray::breakVertex(int i, const CZemPoint3d& p) {
    if (i < 0 || i >= len()) return *this;
    const CZemPlaneView view(*this);
    const CZemArc arc(view.planar()[i]);
    const CZemPoint3d q = view.toPlane(p);
    const double t = arc.nearestParam(q);
    if (!arc.isFinite() || !(arc.pointAt(t).distanceTo(q) <= ZEM::kDistTol)) return *this;
    if (t * arc.length() <= ZEM::kDistTol || (1.0 - t) * arc.length() <= ZEM::kDistTol) return *this;
    const CZemVertex first = arc.piece(0.0, t);
    const CZemVertex second = arc.piece(t, 1.0);
    const CZemVertex whole = m_items[i];
    m_items[i].set(whole.m_start, p, first.m_bulge);
    insertAt(i + 1, CZemVertex(p, whole.m_end, second.m_bulge));
    return *this;
}

bool CZemVertexArray::intersectWith(CZemPoint3dArray& out, const CZemVertexArray& other, unsigned int mode) const {
    const CZemIntersector intersector(*this, other);
    out = mode == 3 ? intersector.lineCrossings() : intersector.allMeets();
    return out.len() > 0;
}

CZemPoint3dArray CZemVertexArray::intersectWith(const CZemVertexArray& other, unsigned int mode) const {
    CZemPoint3dArray out;
    intersectWith(out, other, mode);
    return out;
}
