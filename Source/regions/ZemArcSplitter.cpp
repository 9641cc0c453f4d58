#include "ZemArcSplitter.h"

#include "ZemPolyline.h"

namespace {

const double kLongArc = 4.0;
const double kShortArcTolerance = 0.01;
const double kLongArcTolerance = 0.05;

}  // namespace

CZemArcSplitter::CZemArcSplitter(const CZemVertexArray& vl) : m_vl(vl) {
    m_toWorld.setToPlaneToWorld(vl.normal());
    m_toPlane = m_toWorld.inverse();
}

CZemVertexArray CZemArcSplitter::split() const {
    CZemVertexArray out;
    out.setNormal(m_vl.normal());
    for (int k = 0; k < m_vl.len(); ++k) {
        if (m_vl[k].m_bulge == 0.0) {
            out.append(m_vl[k]);
        } else {
            out += chordsOf(m_vl[k]);
        }
    }
    return out;
}

CZemVertexArray CZemArcSplitter::chordsOf(CZemVertex arc) const {
    arc.transformBy(m_toPlane);
    const double tolerance = arc.bulgLen() < kLongArc ? kShortArcTolerance : kLongArcTolerance;
    const CZemVertexArray one(arc);
    CZemVertexArray chords = ZEM::g_vl_expl(one, ZEM::g_vx_split_dif(arc, tolerance));
    chords.transformBy(m_toWorld);
    return chords;
}
