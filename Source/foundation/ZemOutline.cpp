#include "ZemOutline.h"

#include "ZemGeomTolerance.h"
#include "ZemPolyline.h"

#include <cmath>
#include <vector>

namespace {

const double kPi = 3.141592653589793;

// A corner of a form and the bulge of the edge that leaves it.
struct Node {
    double x, y, bulge;
};
using Nodes = std::vector<Node>;
using Builder = bool (*)(const double* p, Nodes& n);

double quarterBulge() { return std::tan(kPi / 8.0); }

bool rectangle(const double* p, Nodes& n) {
    const double w = p[0], h = p[1];
    n = {{0, 0, 0}, {w, 0, 0}, {w, h, 0}, {0, h, 0}};
    return w > 0.0 && h > 0.0;
}

bool circle(const double* p, Nodes& n) {
    const double r = std::fabs(p[0]) / 2.0;
    n = {{r, 0, 1}, {-r, 0, 1}};
    return r > 0.0;
}

bool oblong(const double* p, Nodes& n) {
    const double l = p[0], w = p[1], r = w / 2.0;
    n = {{r, 0, 0}, {l - r, 0, 1}, {l - r, w, 0}, {r, w, 1}};
    return w > 0.0 && w <= l;
}

bool roundedRectangle(const double* p, Nodes& n) {
    const double w = p[0], h = p[1], r = p[2], q = quarterBulge();
    n = {{r, 0, 0}, {w - r, 0, q}, {w, r, 0}, {w, h - r, q}, {w - r, h, 0}, {r, h, q}, {0, h - r, 0}, {0, r, q}};
    return w > 0.0 && h > 0.0 && r >= 0.0 && 2.0 * r <= std::fmin(w, h);
}

bool chamferedRectangle(const double* p, Nodes& n) {
    const double w = p[0], h = p[1], c = p[2];
    n = {{c, 0, 0}, {w - c, 0, 0}, {w, c, 0}, {w, h - c, 0}, {w - c, h, 0}, {c, h, 0}, {0, h - c, 0}, {0, c, 0}};
    return w > 0.0 && h > 0.0 && c >= 0.0 && 2.0 * c <= std::fmin(w, h);
}

bool triangle(const double* p, Nodes& n) {
    n = {{0, 0, 0}, {p[0], 0, 0}, {p[2], p[1], 0}};
    return p[0] > 0.0 && p[1] > 0.0;
}

bool regularPolygon(const double* p, Nodes& n) {
    const double corners = std::round(p[0]), r = std::fabs(p[1]) / 2.0;
    if (!(corners >= 3.0 && corners <= 1000.0 && r > 0.0)) return false;
    const int count = static_cast<int>(corners);
    for (int k = 0; k < count; ++k) {
        const double a = p[2] + 2.0 * kPi * k / count;
        n.push_back({r * std::cos(a), r * std::sin(a), 0});
    }
    return true;
}

bool arcSlot(const double* p, Nodes& n) {
    const double r = p[0], half = p[1] / 2.0, a = p[2], b = std::tan(a / 4.0);
    const double c = std::cos(a), s = std::sin(a);
    n = {{r + half, 0, b}, {(r + half) * c, (r + half) * s, 1}, {(r - half) * c, (r - half) * s, -b}, {r - half, 0, 1}};
    return half > 0.0 && half < r && a > 0.0 && a < 2.0 * kPi;
}

bool lShape(const double* p, Nodes& n) {
    const double w = p[0], h = p[1], up = p[2], lying = p[3];
    n = {{0, 0, 0}, {w, 0, 0}, {w, lying, 0}, {up, lying, 0}, {up, h, 0}, {0, h, 0}};
    return up > 0.0 && up < w && lying > 0.0 && lying < h;
}

bool tShape(const double* p, Nodes& n) {
    const double w = p[0], h = p[1], f = p[2], x0 = (w - p[3]) / 2.0, x1 = x0 + p[3];
    n = {{x0, 0, 0}, {x1, 0, 0}, {x1, h - f, 0}, {w, h - f, 0}, {w, h, 0}, {0, h, 0}, {0, h - f, 0}, {x0, h - f, 0}};
    return f > 0.0 && f < h && p[3] > 0.0 && p[3] < w;
}

bool uShape(const double* p, Nodes& n) {
    const double w = p[0], h = p[1], side = p[2], base = p[3];
    n = {{0, 0, 0}, {w, 0, 0}, {w, h, 0}, {w - side, h, 0}, {w - side, base, 0}, {side, base, 0}, {side, h, 0}, {0, h, 0}};
    return side > 0.0 && 2.0 * side < w && base > 0.0 && base < h;
}

bool cross(const double* p, Nodes& n) {
    const double w = p[0], h = p[1], x0 = (w - p[3]) / 2.0, x1 = x0 + p[3], y0 = (h - p[2]) / 2.0, y1 = y0 + p[2];
    n = {{x0, 0, 0}, {x1, 0, 0}, {x1, y0, 0}, {w, y0, 0}, {w, y1, 0}, {x1, y1, 0},
         {x1, h, 0}, {x0, h, 0}, {x0, y1, 0}, {0, y1, 0}, {0, y0, 0}, {x0, y0, 0}};
    return p[2] > 0.0 && p[2] < h && p[3] > 0.0 && p[3] < w;
}

bool trapezoid(const double* p, Nodes& n) {
    const double bottom = p[0], top = p[1], h = p[2], offset = p[3];
    n = {{0, 0, 0}, {bottom, 0, 0}, {offset + top, h, 0}, {offset, h, 0}};
    return bottom > 0.0 && top >= 0.0 && h > 0.0;
}

bool parallelogram(const double* p, Nodes& n) {
    n = {{0, 0, 0}, {p[0], 0, 0}, {p[0] + p[2], p[1], 0}, {p[2], p[1], 0}};
    return p[0] > 0.0 && p[1] > 0.0;
}

bool halfCircle(const double* p, Nodes& n) {
    const double r = std::fabs(p[0]) / 2.0;
    n = {{r, 0, 1}, {-r, 0, 0}};
    return r > 0.0;
}

bool sector(const double* p, Nodes& n) {
    const double r = p[0], a = p[1];
    n = {{0, 0, 0}, {r, 0, std::tan(a / 4.0)}, {r * std::cos(a), r * std::sin(a), 0}};
    return r > 0.0 && a > 0.0 && a < 2.0 * kPi;
}

bool iShape(const double* p, Nodes& n) {
    const double w = p[0], h = p[1], f = p[2], x0 = (w - p[3]) / 2.0, x1 = x0 + p[3];
    n = {{0, 0, 0}, {w, 0, 0}, {w, f, 0},     {x1, f, 0},     {x1, h - f, 0}, {w, h - f, 0},
         {w, h, 0}, {0, h, 0}, {0, h - f, 0}, {x0, h - f, 0}, {x0, f, 0},     {0, f, 0}};
    return f > 0.0 && 2.0 * f < h && p[3] > 0.0 && p[3] < w;
}

bool zShape(const double* p, Nodes& n) {
    const double w = p[0], h = p[1], f = p[2], x0 = (w - p[3]) / 2.0, x1 = x0 + p[3];
    n = {{x0, 0, 0}, {w, 0, 0}, {w, f, 0}, {x1, f, 0}, {x1, h, 0}, {0, h, 0}, {0, h - f, 0}, {x0, h - f, 0}};
    return f > 0.0 && 2.0 * f < h && p[3] > 0.0 && p[3] < w;
}

bool arch(const double* p, Nodes& n) {
    const double w = p[0], h = p[1];
    n = {{0, 0, 0}, {w, 0, 0}, {w, h, 1}, {0, h, 0}};
    return w > 0.0 && h >= 0.0;
}

bool rhombus(const double* p, Nodes& n) {
    const double w = std::fabs(p[0]) / 2.0, h = std::fabs(p[1]) / 2.0;
    n = {{0, -h, 0}, {w, 0, 0}, {0, h, 0}, {-w, 0, 0}};
    return w > 0.0 && h > 0.0;
}

bool ringSegment(const double* p, Nodes& n) {
    const double r = p[0], inner = p[0] - p[1], a = p[2] * kPi / 180.0, b = std::tan(a / 4.0);
    const double c = std::cos(a), s = std::sin(a);
    n = {{r, 0, b}, {r * c, r * s, 0}, {inner * c, inner * s, -b}, {inner, 0, 0}};
    return p[1] > 0.0 && inner >= 0.0 && a > 0.0 && a < 2.0 * kPi;
}

struct Form {
    int parameters;
    int mirrorX;  // index of the parameter whose sign mirrors in x, or -1
    int mirrorY;
    Builder build;
};

// Indexed by form number - 1, in the order of the table in ZemOutline.h.
const Form kForms[] = {
    {2, 0, 1, rectangle},               // 1
    {1, -1, -1, circle},                // 2
    {2, 0, 1, oblong},                  // 3
    {3, 0, 1, roundedRectangle},        // 4
    {3, 0, 1, chamferedRectangle},      // 5
    {3, 0, 1, triangle},                // 6
    {3, -1, -1, regularPolygon},        // 7
    {3, -1, 2, arcSlot},                // 8
    {4, 0, 1, lShape},                  // 9
    {4, 0, 1, tShape},                  // 10
    {4, 0, 1, uShape},                  // 11
    {4, 0, 1, cross},                   // 12
    {4, 0, 2, trapezoid},               // 13
    {3, 0, 1, parallelogram},           // 14
    {1, -1, -1, halfCircle},            // 15
    {2, -1, 1, sector},                 // 16
    {4, 0, 1, iShape},                  // 17
    {4, 0, 1, zShape},                  // 18
    {2, 0, 1, arch},                    // 19
    {2, -1, -1, rhombus},               // 20
    {3, -1, 2, ringSegment},            // 21
};

// The corners joined in order and back to the first, mirrored by the signs
// sx and sy; a mirror in one axis turns the sense of the arcs.
CZemVertexArray closedPath(const Nodes& nodes, double sx, double sy) {
    CZemVertexArray vl;
    for (size_t k = 0; k < nodes.size(); ++k) {
        const Node& a = nodes[k];
        const Node& b = nodes[(k + 1) % nodes.size()];
        const CZemPoint3d from(sx * a.x, sy * a.y, 0.0), to(sx * b.x, sy * b.y, 0.0);
        if (from.distanceTo(to) > ZEM::kDistTol) vl.append(CZemVertex(from, to, sx * sy * a.bulge));
    }
    return vl;
}

}  // namespace

namespace ZEM {

CZemVertexArray g_outline(int form, const CZemVector3d& base, const CZemArrayTempl<double>& parameters) {
    const int forms = static_cast<int>(sizeof(kForms) / sizeof(kForms[0]));
    if (form < 1 || form > forms) return CZemVertexArray();
    const Form& f = kForms[form - 1];
    double p[6] = {0.0, 0.0, 0.0, 0.0, 0.0, 0.0};
    for (int k = 0; k < f.parameters && k < parameters.len(); ++k) {
        if (!std::isfinite(parameters[k])) return CZemVertexArray();
        p[k] = parameters[k];
    }
    double sx = 1.0, sy = 1.0;
    if (f.mirrorX >= 0 && p[f.mirrorX] < 0.0) {
        sx = -1.0;
        p[f.mirrorX] = -p[f.mirrorX];
    }
    if (f.mirrorY >= 0 && p[f.mirrorY] < 0.0) {
        sy = -1.0;
        p[f.mirrorY] = -p[f.mirrorY];
    }
    Nodes nodes;
    if (!f.build(p, nodes)) return CZemVertexArray();
    CZemVertexArray vl = closedPath(nodes, sx, sy);
    if (!g_vl_orient(vl, CZemVector3d::kZAxis)) vl.revert();
    return vl.move(base);
}

}  // namespace ZEM
