#include "Zem_Solid.h"

#include "ZemHiddenLine.h"
#include "ZemPolyline.h"

#include <algorithm>
#include <cmath>

namespace {

const double kPi = 3.14159265358979323846;
// Arcs become chords of at most this included angle.
const double kChordAngle = kPi / 18.0;
// Two walls whose directions differ by less than this meet smoothly.
const double kSmoothAngle = 1e-6;
// A wall whose unit normal points less than this towards the viewer is seen edge-on.
const double kEdgeOn = 1e-9;

struct Direction {
    double x, y;
};

Direction turned(Direction d, double angle) {
    const double c = std::cos(angle), s = std::sin(angle);
    return {d.x * c - d.y * s, d.x * s + d.y * c};
}

// The directions in which a vertex leaves its start and reaches its end: an
// arc's tangents lie half its included angle either side of its chord.
void tangents(const CZemVertex& v, Direction& start, Direction& end) {
    const double dx = v.m_end.x - v.m_start.x, dy = v.m_end.y - v.m_start.y;
    const double length = std::hypot(dx, dy);
    const Direction chord = length > 0.0 ? Direction{dx / length, dy / length} : Direction{1.0, 0.0};
    const double half = 2.0 * std::atan(v.m_bulge);
    start = turned(chord, -half);
    end = turned(chord, half);
}

bool finite(const CZemVertex& v) {
    return std::isfinite(v.m_start.x) && std::isfinite(v.m_start.y) && std::isfinite(v.m_end.x) &&
           std::isfinite(v.m_end.y) && std::isfinite(v.m_bulge);
}

CZemPoint3d lifted(double x, double y, double z) { return CZemPoint3d(x, y, z); }

}  // namespace

bool CZem_Solid::toRing(const CZemVertexArray& vl, Ring& out) {
    out.clear();
    if (vl.isEmpty() || !vl.isClosed()) return false;
    for (int i = 0; i < vl.len(); ++i) {
        const CZemVertex& v = vl[i];
        if (!finite(v)) return false;
        Direction before, after, ignored;
        tangents(vl[i == 0 ? vl.len() - 1 : i - 1], ignored, before);
        tangents(v, after, ignored);
        const bool smoothJoint = std::fabs(before.x * after.y - before.y * after.x) < kSmoothAngle &&
                                 before.x * after.x + before.y * after.y > 0.0;
        const int chords = static_cast<int>(std::ceil(std::fabs(4.0 * std::atan(v.m_bulge)) / kChordAngle));
        const CZemVertexArray pieces = ZEM::g_vl_expl(CZemVertexArray(v), std::max(1, chords));
        for (int k = 0; k < pieces.len(); ++k) {
            const CZemPoint3d& p = pieces[k].m_start;
            if (!out.empty() && std::hypot(p.x - out.back().x, p.y - out.back().y) <= 1e-12) continue;
            out.push_back(Point{p.x, p.y, k == 0 ? smoothJoint : true});
        }
    }
    while (out.size() > 1 && std::hypot(out.front().x - out.back().x, out.front().y - out.back().y) <= 1e-12)
        out.pop_back();
    double area = 0.0, size = 0.0;
    for (std::size_t i = 0; i < out.size(); ++i) {
        const Point& p = out[i];
        const Point& q = out[(i + 1) % out.size()];
        area += p.x * q.y - q.x * p.y;
        size = std::max(size, std::hypot(q.x - p.x, q.y - p.y));
    }
    return out.size() >= 3 && std::fabs(area) > 1e-12 * size * size;
}

bool CZem_Solid::addPrism(const CZemVertexArray& outline, const CZemArrayTempl<CZemVertexArray>& holes, double z0,
                          double z1) {
    if (!std::isfinite(z0) || !std::isfinite(z1) || z0 == z1) return false;
    Prism prism{std::vector<Ring>(static_cast<std::size_t>(holes.len()) + 1), std::min(z0, z1), std::max(z0, z1)};
    if (!toRing(outline, prism.rings[0])) return false;
    for (int k = 0; k < holes.len(); ++k)
        if (!toRing(holes[k], prism.rings[static_cast<std::size_t>(k) + 1])) return false;
    m_prisms.push_back(prism);
    m_prepared = false;
    return true;
}

void CZem_Solid::clear() {
    m_prisms.clear();
    m_faces.clear();
    m_edges.clear();
    m_prepared = false;
}

void CZem_Solid::hiddenLineSet(int on) { m_hiddenLines = on != 0; }

bool CZem_Solid::prepare() {
    m_faces.clear();
    m_edges.clear();
    for (const Prism& prism : m_prisms) addPrismFaces(prism);
    m_prepared = !m_faces.empty();
    return m_prepared;
}

void CZem_Solid::addPrismFaces(const Prism& prism) {
    Face bottom;
    Face top;
    for (const Ring& ring : prism.rings) {
        bottom.loops.emplace_back();
        top.loops.emplace_back();
        for (const Point& p : ring) {
            bottom.loops.back().push_back(lifted(p.x, p.y, prism.z0));
            top.loops.back().push_back(lifted(p.x, p.y, prism.z1));
        }
    }
    const int bottomFace = static_cast<int>(m_faces.size());
    m_faces.push_back(bottom);
    m_faces.push_back(top);
    for (const Ring& ring : prism.rings) addRingWalls(ring, prism.z0, prism.z1, bottomFace, bottomFace + 1);
}

// One wall a side of the ring, each bounded by its bottom and top edge and
// the upright edges where it meets its neighbours.
void CZem_Solid::addRingWalls(const Ring& ring, double z0, double z1, int bottom, int top) {
    const int first = static_cast<int>(m_faces.size());
    const int n = static_cast<int>(ring.size());
    for (int i = 0; i < n; ++i) {
        const Point& p = ring[static_cast<std::size_t>(i)];
        const Point& q = ring[static_cast<std::size_t>((i + 1) % n)];
        m_faces.push_back(Face{{{lifted(p.x, p.y, z0), lifted(q.x, q.y, z0), lifted(q.x, q.y, z1), lifted(p.x, p.y, z1)}}});
        m_edges.push_back(Edge{lifted(p.x, p.y, z0), lifted(q.x, q.y, z0), bottom, first + i, false});
        m_edges.push_back(Edge{lifted(p.x, p.y, z1), lifted(q.x, q.y, z1), top, first + i, false});
        m_edges.push_back(Edge{lifted(p.x, p.y, z0), lifted(p.x, p.y, z1), first + (i + n - 1) % n, first + i, p.smooth});
    }
}

// A smooth upright edge shows where one of its walls faces the viewer and
// the other does not: there it is part of the outline of the view. A wall
// seen edge-on counts as turned away, so that its two edges, which fall on
// one line, give one outline.
bool CZem_Solid::onOutline(const Edge& edge, const CZemMatrix3d& toView) const {
    bool facing[2];
    for (int k = 0; k < 2; ++k) {
        const std::vector<CZemPoint3d>& wall = m_faces[static_cast<std::size_t>(k == 0 ? edge.face0 : edge.face1)].loops[0];
        CZemVector3d across(wall[1].y - wall[0].y, wall[0].x - wall[1].x, 0.0);
        facing[k] = (across.normalize() * toView).z > kEdgeOn;
    }
    return facing[0] != facing[1];
}

void CZem_Solid::emit(const Edge& edge, const CZemMatrix3d& toView, int depth, double from, double to,
                      CZemArrayTempl<CZemVertexArrayEx>& out) const {
    const CZemVector3d along = edge.b - edge.a;
    CZemPoint3d start = (edge.a + along * from) * toView;
    CZemPoint3d end = (edge.a + along * to) * toView;
    if (depth == 0) start.z = end.z = 0.0;
    CZemVertexArrayEx piece(CZemVertexArray(CZemVertex(start, end, 0.0)));
    piece.m_direction = along;
    piece.m_direction.normalize();
    out.append(piece);
}

bool CZem_Solid::project(const CZemMatrix3d& view, int depth, CZemArrayTempl<CZemVertexArrayEx>& visible,
                         CZemArrayTempl<CZemVertexArrayEx>& hidden, int replace) {
    if (!m_prepared && !prepare()) return false;
    if (replace) {
        visible.setLogicalLength(0);
        hidden.setLogicalLength(0);
    }
    const CZemMatrix3d toView = view.inverse();
    CZemPoint3d low(HUGE_VAL, HUGE_VAL, HUGE_VAL), high(-HUGE_VAL, -HUGE_VAL, -HUGE_VAL);
    for (const Edge& edge : m_edges) {
        for (const CZemPoint3d& p : {edge.a, edge.b}) {
            low.set(std::min(low.x, p.x), std::min(low.y, p.y), std::min(low.z, p.z));
            high.set(std::max(high.x, p.x), std::max(high.y, p.y), std::max(high.z, p.z));
        }
    }
    const double scale = low.distanceTo(high);
    CZemHiddenLine scene(scale);
    for (const Face& face : m_faces) {
        std::vector<CZemHiddenLine::Loop> loops;
        for (const std::vector<CZemPoint3d>& loop : face.loops) {
            loops.emplace_back();
            for (const CZemPoint3d& p : loop) {
                const CZemPoint3d v = p * toView;
                loops.back().push_back({v.x, v.y, v.z});
            }
        }
        scene.addFace(loops);
    }
    for (const Edge& edge : m_edges) {
        if (edge.smooth && !onOutline(edge, toView)) continue;
        const CZemPoint3d a = edge.a * toView;
        const CZemPoint3d b = edge.b * toView;
        if (std::hypot(b.x - a.x, b.y - a.y) <= 1e-9 * scale) continue;
        CZemHiddenLine::Intervals hiddenParts;
        if (m_hiddenLines) hiddenParts = scene.hiddenParts({a.x, a.y, a.z}, {b.x, b.y, b.z}, edge.face0, edge.face1);
        // Pieces shorter than this on the screen are rounding, not drawing.
        const double shortest = 1e-9 * scale / std::hypot(b.x - a.x, b.y - a.y);
        double t = 0.0;
        for (const auto& part : hiddenParts) {
            if (part.first - t > shortest) emit(edge, toView, depth, t, part.first, visible);
            if (part.second - part.first > shortest) emit(edge, toView, depth, part.first, part.second, hidden);
            t = part.second;
        }
        if (1.0 - t > shortest) emit(edge, toView, depth, t, 1.0, visible);
    }
    return true;
}
