#include "ZemRectUnion.h"

#include <algorithm>
#include <map>

namespace {

// Directions of boundary edges: +x, +y, -x, -y, so that d + 1 turns left.
constexpr int kStepX[4] = {1, 0, -1, 0};
constexpr int kStepY[4] = {0, 1, 0, -1};

struct Edge {
    int x, y;  // start vertex in grid indices
    int dir;
    bool used;
};

std::vector<double> sortedUnique(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    values.erase(std::unique(values.begin(), values.end()), values.end());
    return values;
}

}  // namespace

// The plane cut at every rectangle side into cells, each cell wholly inside
// or outside the result; parts are numbered by edge-connected cells.
struct CZemRectUnion::Grid {
    std::vector<double> xs, ys;
    std::vector<int> part;  // -1 outside, else the part's number
    int parts = 0;

    int nx() const { return static_cast<int>(xs.size()) - 1; }
    int ny() const { return static_cast<int>(ys.size()) - 1; }
    int partAt(int i, int j) const { return i < 0 || j < 0 || i >= nx() || j >= ny() ? -1 : part[j * nx() + i]; }

    void label()
    {
        for (int start = 0; start < static_cast<int>(part.size()); ++start) {
            if (part[start] != -2)
                continue;
            std::vector<int> open{start};
            part[start] = parts;
            while (!open.empty()) {
                const int cell = open.back();
                open.pop_back();
                for (int d = 0; d < 4; ++d) {
                    const int i = cell % nx() + kStepX[d], j = cell / nx() + kStepY[d];
                    if (i >= 0 && j >= 0 && i < nx() && j < ny() && part[j * nx() + i] == -2) {
                        part[j * nx() + i] = parts;
                        open.push_back(j * nx() + i);
                    }
                }
            }
            ++parts;
        }
    }

    // The sides of the part's cells that face away from it, directed with
    // the part on their left.
    std::vector<Edge> boundary(int p) const
    {
        std::vector<Edge> edges;
        for (int j = 0; j < ny(); ++j) {
            for (int i = 0; i < nx(); ++i) {
                if (partAt(i, j) != p)
                    continue;
                if (partAt(i, j - 1) != p)
                    edges.push_back({i, j, 0, false});
                if (partAt(i + 1, j) != p)
                    edges.push_back({i + 1, j, 1, false});
                if (partAt(i, j + 1) != p)
                    edges.push_back({i + 1, j + 1, 2, false});
                if (partAt(i - 1, j) != p)
                    edges.push_back({i, j + 1, 3, false});
            }
        }
        return edges;
    }

    CZemPoint3d point(int i, int j) const { return CZemPoint3d(xs[i], ys[j], 0.0); }
};

CZemRectUnion::Rect CZemRectUnion::normalised(double x0, double y0, double x1, double y1)
{
    return {std::min(x0, x1), std::min(y0, y1), std::max(x0, x1), std::max(y0, y1)};
}

CZemRectUnion& CZemRectUnion::add(double x0, double y0, double x1, double y1)
{
    m_added.push_back(normalised(x0, y0, x1, y1));
    return *this;
}

CZemRectUnion& CZemRectUnion::cut(double x0, double y0, double x1, double y1)
{
    m_cut.push_back(normalised(x0, y0, x1, y1));
    return *this;
}

namespace {

// Follows edges from a first one until it comes back. Where corners of the
// part meet at one point the loop turns as far left as it can, so it keeps
// to the cell it came along. Corners where the direction stays are left out.
CZemVertexArray traceLoop(std::vector<Edge>& edges, const std::multimap<std::pair<int, int>, int>& from, int first,
                          const std::vector<double>& xs, const std::vector<double>& ys)
{
    CZemPoint3dArray points;
    int current = first;
    do {
        Edge& edge = edges[current];
        edge.used = true;
        const int endX = edge.x + kStepX[edge.dir], endY = edge.y + kStepY[edge.dir];
        int next = -1;
        for (int turn : {1, 0, 3}) {
            const auto range = from.equal_range({endX, endY});
            for (auto it = range.first; it != range.second && next < 0; ++it) {
                if (edges[it->second].dir == (edge.dir + turn) % 4)
                    next = it->second;
            }
            if (next >= 0)
                break;
        }
        if (next < 0)
            break;
        if (edges[next].dir != edge.dir)
            points.append(CZemPoint3d(xs[endX], ys[endY], 0.0));
        current = next;
    } while (!edges[current].used);
    CZemVertexArray loop;
    loop.fromPoints(points, true);
    return loop;
}

double signedArea(const CZemVertexArray& loop)
{
    double twice = 0.0;
    for (int k = 0; k < loop.len(); ++k)
        twice += loop[k].m_start.x * loop[k].m_end.y - loop[k].m_end.x * loop[k].m_start.y;
    return twice / 2.0;
}

}  // namespace

CZemArrayTempl<CZemArrayTempl<CZemVertexArray>> CZemRectUnion::regions() const
{
    CZemArrayTempl<CZemArrayTempl<CZemVertexArray>> out;
    std::vector<double> xs, ys;
    for (const std::vector<Rect>* set : {&m_added, &m_cut}) {
        for (const Rect& r : *set) {
            xs.insert(xs.end(), {r.x0, r.x1});
            ys.insert(ys.end(), {r.y0, r.y1});
        }
    }
    Grid grid;
    grid.xs = sortedUnique(xs);
    grid.ys = sortedUnique(ys);
    if (grid.nx() < 1 || grid.ny() < 1)
        return out;
    grid.part.assign(static_cast<size_t>(grid.nx() * grid.ny()), -1);
    for (int j = 0; j < grid.ny(); ++j) {
        for (int i = 0; i < grid.nx(); ++i) {
            const double cx = (grid.xs[i] + grid.xs[i + 1]) / 2.0, cy = (grid.ys[j] + grid.ys[j + 1]) / 2.0;
            const auto holds = [cx, cy](const Rect& r) { return r.holds(cx, cy); };
            if (std::any_of(m_added.begin(), m_added.end(), holds) && std::none_of(m_cut.begin(), m_cut.end(), holds))
                grid.part[j * grid.nx() + i] = -2;
        }
    }
    grid.label();
    for (int p = 0; p < grid.parts; ++p) {
        std::vector<Edge> edges = grid.boundary(p);
        std::multimap<std::pair<int, int>, int> from;
        for (int e = 0; e < static_cast<int>(edges.size()); ++e)
            from.emplace(std::make_pair(edges[e].x, edges[e].y), e);
        CZemArrayTempl<CZemVertexArray> region;
        region.append(CZemVertexArray());
        for (int e = 0; e < static_cast<int>(edges.size()); ++e) {
            if (edges[e].used)
                continue;
            const CZemVertexArray loop = traceLoop(edges, from, e, grid.xs, grid.ys);
            if (signedArea(loop) > 0.0)
                region[0] = loop;
            else
                region.append(loop);
        }
        out.append(region);
    }
    return out;
}
