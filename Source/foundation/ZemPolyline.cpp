#include "ZemPolyline.h"

#include "ZemArc.h"
#include "ZemGeomTolerance.h"
#include "ZemMatrix3d.h"
#include "ZemPlaneView.h"

#include <cmath>

namespace {

bool isFiniteVertex(const CZemVertex& v) { return CZemArc(v).isFinite(); }

// The area between an arc of chord c and bulge b and its chord:
// r^2 / 2 (a - sin a) for the included angle a, by its series when a is small.
double segmentArea(double chord, double bulge) {
    const double b = std::fabs(bulge);
    const double a = 4.0 * std::atan(b);
    const double r = chord * (1.0 + b * b) / (4.0 * b);
    const double excess = a < 1e-3 ? a * a * a / 6.0 - a * a * a * a * a / 120.0 : a - std::sin(a);
    return 0.5 * r * r * excess;
}

CZemMatrix3d turnAboutZ(double angle) {
    CZemMatrix3d m;
    return m.setToRotation(angle, CZemVector3d::kZAxis, CZemPoint3d::kOrigin);
}

}  // namespace

namespace ZEM {

// Twice the area vector of the chord polygon is the sum of the cross
// products of its edges seen from one of its corners; each arc adds its
// segment area along the list's normal, with the sign of its bulge.
bool g_vl_orient(const CZemVertexArray& vl, const CZemVector3d& normal) {
    CZemVector3d area;
    bool started = false;
    CZemPoint3d origin, last;
    auto addEdge = [&](const CZemPoint3d& a, const CZemPoint3d& b) { area = area + ((a - origin) * (b - origin)) * 0.5; };
    for (int i = 0; i < vl.len(); ++i) {
        const CZemVertex& v = vl[i];
        if (!isFiniteVertex(v)) continue;
        if (!started) origin = v.m_start;
        else addEdge(last, v.m_start);
        started = true;
        addEdge(v.m_start, v.m_end);
        last = v.m_end;
        const double chord = v.m_start.distanceTo(v.m_end);
        if (std::fabs(v.m_bulge) >= kBulgeTol && chord > kDistTol) {
            const double sign = v.m_bulge > 0.0 ? 1.0 : -1.0;
            CZemVector3d n(vl.normal());
            area = area + n.normalize() * (sign * segmentArea(chord, v.m_bulge));
        }
    }
    if (started) addEdge(last, origin);
    return area.dotProduct(normal) > 0.0;
}

CZemPoint3dArray g_vl_extmax(CZemVertexArray vl, double angle) {
    CZemPoint3dArray corners;
    corners.append(CZemPoint3d::kOrigin).append(CZemPoint3d::kOrigin);
    vl.transformBy(turnAboutZ(-angle));
    CZemPoint3d lo, hi;
    if (!vl.extents(lo, hi)) return corners;
    const CZemMatrix3d back = turnAboutZ(angle);
    corners[0] = lo * back;
    corners[1] = hi * back;
    return corners;
}

CZemVertexArray g_vl_expl(const CZemVertexArray& vl, int count) {
    const int n = count < 1 ? 1 : (count > kMaxChords ? kMaxChords : count);
    const CZemPlaneView view(vl);
    CZemVertexArray out;
    out.setNormal(vl.normal());
    for (int i = 0; i < vl.len(); ++i) {
        const CZemArc arc(view.planar()[i]);
        if (!arc.isArc()) {
            out.append(vl[i]);
            continue;
        }
        CZemPoint3d from = vl[i].m_start;
        for (int k = 1; k <= n; ++k) {
            const CZemPoint3d to = k == n ? vl[i].m_end : view.toWorld(arc.pointAt(static_cast<double>(k) / n));
            out.append(CZemVertex(from, to, 0.0));
            from = to;
        }
    }
    return out;
}

// The chord count depends only on the chord length and the bulge, so the
// vertex is measured laid out along the X axis, whatever its plane.
int g_vx_split_dif(const CZemVertex& vertex, double tolerance) {
    const double chord = vertex.m_start.distanceTo(vertex.m_end);
    const CZemVertex flat(CZemPoint3d::kOrigin, CZemPoint3d(chord, 0.0, 0.0), vertex.m_bulge);
    return CZemArc(flat).chordCount(tolerance);
}

}  // namespace ZEM

CZemVertexArray g_vl_extrect(const CZemVertexArray& vl, double angle) {
    CZemVertexArray turned = vl.getTransformedCopy(turnAboutZ(-angle));
    CZemPoint3d lo, hi;
    CZemVertexArray rect;
    if (!turned.extents(lo, hi)) return rect;
    const CZemMatrix3d back = turnAboutZ(angle);
    CZemPoint3dArray corners;
    corners.append(CZemPoint3d(lo.x, lo.y, lo.z) * back).append(CZemPoint3d(hi.x, lo.y, lo.z) * back);
    corners.append(CZemPoint3d(hi.x, hi.y, lo.z) * back).append(CZemPoint3d(lo.x, hi.y, lo.z) * back);
    for (int k = 0; k < 4; ++k) rect.append(CZemVertex(corners[k], corners[(k + 1) % 4], 0.0));
    return rect;
}

CZemVertex& zem_g_vx_xy(CZemVertex& vertex) {
    vertex.m_start.z = 0.0;
    vertex.m_end.z = 0.0;
    return vertex;
}

CZemArrayTempl<CZemVertexArray> zem_g_vl_to_vll(CZemVertexArray vl) {
    CZemArrayTempl<CZemVertexArray> runs;
    CZemVertexArray run;
    run.setNormal(vl.normal());
    for (int i = 0; i < vl.len(); ++i) {
        if (run.len() > 0 && !(run[-1].m_end.distanceTo(vl[i].m_start) <= ZEM::kDistTol)) {
            runs.append(run);
            run.setLogicalLength(0);
        }
        run.append(vl[i]);
    }
    if (run.len() > 0) runs.append(run);
    return runs;
}
