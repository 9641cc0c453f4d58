#include "ZemPlainHatcher.h"

#include "ZemBase.h"
#include "ZemClip.h"
#include "ZemMeasure.h"
#include "ZemPolyline.h"
#include "ZemPoint3dArray.h"
#include "ZemRegionPrep.h"
#include "ZemRegionUtil.h"

#include <algorithm>
#include <cmath>

namespace {

const double kPi = 3.14159265358979323846;

}  // namespace

CZemPlainHatcher::CZemPlainHatcher(CZemArrayTempl<CZemVertexArray> regs, const CZemMatrix3d& mtx, double spacing)
    : m_regs(regs), m_mtx(mtx), m_spacing(spacing) {
    zem_reg_orient(m_regs);
    zem_reg_transform(m_regs, mtx.inverse());
    zem_reg_ensure_contour(m_regs);
    m_usable = spacing > 0.0 && std::isfinite(spacing) && !m_regs[0].isEmpty();
}

CZemArrayTempl<CZemVertexArray> CZemPlainHatcher::lines(double angle) const {
    CZemArrayTempl<CZemVertexArray> out;
    if (!m_usable || !std::isfinite(angle)) return out;
    const CZemPoint3dArray box = ZEM::g_vl_extmax(m_regs[0], -angle);
    const CZemPoint3dArray rect = ZEM::g_vl_extmax(g_vl_extrect(m_regs[0], 0.0), -angle);
    long long count = 0;
    if (!lineCount(box, count)) return out;
    // The first line passes through the lower corner of the bounding
    // rectangle's turned box and reaches its diagonal beyond it both ways.
    const double reach = rect[0].distanceTo(rect[1]);
    CZemVertexArray line(CZemVertex(ZEM::polar(rect[0], kPi - angle, reach), ZEM::polar(rect[0], -angle, reach), 0.0));
    const CZemVector3d step = ZEM::polar(kPi / 2.0 - angle, m_spacing);
    CZemVector3d across = step;
    across.normalize();
    const double beyond = reachAcross(across);
    for (long long k = 0; k < count; ++k) {
        // Lines past the contour's far side meet nothing; the count may run
        // far beyond it when the spacing is above one unit.
        if ((line[0].m_start - CZemPoint3d::kOrigin).dotProduct(across) > beyond) break;
        appendCarried(ZEM::g_vl_punch_reg(line, m_regs, true), out);
        line.move(step);
    }
    return out;
}

// The number of lines is the number of whole drawing units that the turned
// box spans on its longer side, whatever the spacing: a spacing below one
// unit stops short of the far side, and one above it runs past it.
bool CZemPlainHatcher::lineCount(const CZemPoint3dArray& box, long long& count) const {
    const bool alongX = std::fabs(box[0].x - box[1].x) > std::fabs(box[0].y - box[1].y);
    const double a = alongX ? box[0].x : box[0].y;
    const double b = alongX ? box[1].x : box[1].y;
    long long lo = 0, hi = 0;
    if (!zem_reg_trunc(std::min(a, b), lo) || !zem_reg_trunc(std::max(a, b), hi)) return false;
    count = lo > hi ? lo - hi : hi - lo;
    return true;
}

// How far the contour reaches along the direction across the lines, with a
// margin for rounding: no line beyond it can meet the contour.
double CZemPlainHatcher::reachAcross(const CZemVector3d& across) const {
    CZemPoint3d min, max;
    m_regs[0].extents(min, max);
    double reach = -HUGE_VAL;
    for (int corner = 0; corner < 4; ++corner) {
        const CZemPoint3d p((corner & 1) ? max.x : min.x, (corner & 2) ? max.y : min.y, 0.0);
        reach = std::max(reach, (p - CZemPoint3d::kOrigin).dotProduct(across));
    }
    return reach + 1e-6 * (1.0 + std::fabs(reach)) + 1e-6 * m_spacing;
}

CZemArrayTempl<CZemVertexArray> CZemPlainHatcher::dots() const {
    CZemArrayTempl<CZemVertexArray> out;
    if (!m_usable) return out;
    CZemPoint3d min, max;
    m_regs[0].extents(min, max);
    // Compared as doubles: a height of 2.2 spacings gives four rows, the last
    // above the contour. The rows reach 10 units beyond it on both sides.
    const double rows = (max.y - min.y) / m_spacing + 1.0;
    for (long long k = 0; rows > static_cast<double>(k); ++k) {
        const double y = min.y + static_cast<double>(k) * m_spacing;
        const CZemVertexArray row(CZemVertex(CZemPoint3d(min.x - 10.0, y, 0.0), CZemPoint3d(max.x + 10.0, y, 0.0), 0.0));
        const CZemArrayTempl<CZemVertexArray> pieces = ZEM::g_vl_punch_reg(row, m_regs, true);
        for (int p = 0; p < pieces.len(); ++p) {
            appendCarried(ZEM::g_vl_measure(pieces[p], 1.0, CZemLineParm(0.0, -m_spacing)), out);
        }
    }
    return out;
}

void CZemPlainHatcher::appendCarried(const CZemArrayTempl<CZemVertexArray>& pieces,
                                     CZemArrayTempl<CZemVertexArray>& out) const {
    for (int k = 0; k < pieces.len(); ++k) {
        if (pieces[k].isEmpty()) continue;
        CZemVertexArray piece(pieces[k]);
        piece.transformBy(m_mtx);
        out.append(piece);
    }
}
