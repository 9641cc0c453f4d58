#include "ZemArc.h"

#include "ZemBase.h"
#include "ZemGeomTolerance.h"

#include <cmath>

namespace {

const double kTwoPi = 6.283185307179586;
const double kHalfPi = 1.5707963267948966;

bool isFinitePoint(const CZemPoint3d& p) { return std::isfinite(p.x) && std::isfinite(p.y) && std::isfinite(p.z); }

// The angle brought into [0, 2 pi).
double wrapAngle(double a) {
    a = std::fmod(a, kTwoPi);
    return a < 0.0 ? a + kTwoPi : a;
}

}  // namespace

CZemArc::CZemArc(const CZemVertex& vertex) : m_start(vertex.m_start), m_end(vertex.m_end), m_bulge(vertex.m_bulge) {
    m_finite = isFinitePoint(m_start) && isFinitePoint(m_end) && std::isfinite(m_bulge);
    if (!m_finite) return;
    m_length = m_start.distanceTo(m_end);
    m_point = m_length <= ZEM::kDistTol;
    const double chord = std::hypot(m_end.x - m_start.x, m_end.y - m_start.y);
    if (!m_point && chord > ZEM::kDistTol && std::fabs(m_bulge) >= ZEM::kBulgeTol) setUpArc(chord);
    m_finite = std::isfinite(m_length) && std::isfinite(m_radius);
    if (!m_finite) m_arc = false;
}

// The bulge b = tan(sweep / 4) gives the radius c (1 + b^2) / (4 |b|) for a
// chord c, and puts the centre on the left of the chord (seen from start to
// end) at c (1 - b^2) / (4 b) from its middle: for a positive bulge below a
// half circle the arc bows to the right and turns counter-clockwise.
void CZemArc::setUpArc(double chord) {
    const double b = m_bulge;
    m_sweep = 4.0 * std::atan(b);
    m_radius = chord * (1.0 + b * b) / (4.0 * std::fabs(b));
    const double leftX = -(m_end.y - m_start.y) / chord;
    const double leftY = (m_end.x - m_start.x) / chord;
    const double offset = chord * (1.0 - b * b) / (4.0 * b);
    m_center.set(0.5 * (m_start.x + m_end.x) + leftX * offset, 0.5 * (m_start.y + m_end.y) + leftY * offset,
                 0.5 * (m_start.z + m_end.z));
    m_startAngle = std::atan2(m_start.y - m_center.y, m_start.x - m_center.x);
    m_length = m_radius * std::fabs(m_sweep);
    m_arc = true;
}

CZemPoint3d CZemArc::pointAt(double t) const {
    if (!(t > 0.0)) return m_start;
    if (t >= 1.0) return m_end;
    const double z = m_start.z + t * (m_end.z - m_start.z);
    if (!m_arc) return CZemPoint3d(m_start.x + t * (m_end.x - m_start.x), m_start.y + t * (m_end.y - m_start.y), z);
    const double a = m_startAngle + t * m_sweep;
    return CZemPoint3d(m_center.x + m_radius * std::cos(a), m_center.y + m_radius * std::sin(a), z);
}

double CZemArc::nearestParam(const CZemPoint3d& p) const {
    if (!m_finite || m_point) return 0.0;
    if (!m_arc) {
        const CZemVector3d d = m_end - m_start;
        const double t = (p - m_start).dotProduct(d) / d.dotProduct(d);
        return t < 0.0 ? 0.0 : (t > 1.0 ? 1.0 : t);
    }
    const double t = paramOfAngle(std::atan2(p.y - m_center.y, p.x - m_center.x), 0.0);
    if (t >= 0.0) return t;
    const double toStart = std::hypot(p.x - m_start.x, p.y - m_start.y);
    const double toEnd = std::hypot(p.x - m_end.x, p.y - m_end.y);
    return toStart <= toEnd ? 0.0 : 1.0;
}

double CZemArc::paramOfAngle(double a, double tolAngle) const {
    if (!m_arc) return -1.0;
    const double span = std::fabs(m_sweep);
    const double rel = wrapAngle(m_sweep > 0.0 ? a - m_startAngle : m_startAngle - a);
    if (rel <= span) return rel / span;
    if (rel - span <= tolAngle && rel - span <= kTwoPi - rel) return 1.0;
    if (kTwoPi - rel <= tolAngle) return 0.0;
    return -1.0;
}

CZemVertex CZemArc::piece(double t0, double t1) const {
    const double bulge = m_arc ? std::tan((t1 - t0) * m_sweep / 4.0) : 0.0;
    return CZemVertex(pointAt(t0), pointAt(t1), bulge);
}

void CZemArc::bounds(CZemPoint3d& lo, CZemPoint3d& hi) const {
    lo = ZEM::p_min(m_start, m_end);
    hi = ZEM::p_max(m_start, m_end);
    if (!m_arc) return;
    for (int k = 0; k < 4; ++k) {
        const double t = paramOfAngle(k * kHalfPi, 0.0);
        if (t < 0.0) continue;
        const CZemPoint3d p = pointAt(t);
        lo = ZEM::p_min(lo, p);
        hi = ZEM::p_max(hi, p);
    }
}

// A chord over the angle a leaves the arc by r (1 - cos(a / 2)); n chords
// over the sweep stay within tol when sweep / (2 n) <= acos(1 - tol / r).
int CZemArc::chordCount(double tol) const {
    if (!m_arc) return 1;
    if (!(tol > 0.0)) tol = m_radius * ZEM::kRelFlattenTol;
    const double cosine = 1.0 - tol / m_radius;
    const double halfStep = std::acos(cosine < -1.0 ? -1.0 : cosine);
    if (!(halfStep > 0.0)) return ZEM::kMaxChords;
    const double n = std::ceil(std::fabs(m_sweep) / (2.0 * halfStep));
    if (!(n < ZEM::kMaxChords)) return ZEM::kMaxChords;
    return n < 1.0 ? 1 : static_cast<int>(n);
}
