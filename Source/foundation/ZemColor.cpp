#include "ZemColor.h"

#include "ZemAciTable.h"

namespace {

int channel(unsigned long bgr, int shift) { return static_cast<int>((bgr >> shift) & 0xFF); }

}  // namespace

CZemColor& CZemColor::setColorIndex(int index) {
    m_kind = byIndex;
    m_index = index;
    m_bgr = zem_aci_rgb(index);
    return *this;
}

CZemColor& CZemColor::setColor(unsigned long rgb) {
    return setOleColor(((rgb >> 16) & 0xFF) | (rgb & 0xFF00) | ((rgb & 0xFF) << 16));
}

CZemColor& CZemColor::setOleColor(unsigned long bgr) {
    m_kind = byTrueColor;
    m_bgr = bgr & 0xFFFFFF;
    m_index = nearestIndex(m_bgr);
    return *this;
}

CZemColor& CZemColor::setNames(const wchar_t* book, const wchar_t* name) {
    m_kind = byNames;
    m_book = book;
    m_name = name;
    return *this;
}

unsigned long CZemColor::oleColor() const { return m_kind == byIndex ? zem_aci_rgb(m_index) : m_bgr; }

int CZemColor::red() const { return channel(oleColor(), 0); }

int CZemColor::green() const { return channel(oleColor(), 8); }

int CZemColor::blue() const { return channel(oleColor(), 16); }

bool CZemColor::operator==(const CZemColor& other) const {
    return m_kind == other.m_kind && m_index == other.m_index && m_bgr == other.m_bgr &&
           m_book == other.m_book && m_name == other.m_name;
}

// The index whose table colour lies nearest in RGB space; ties go to the
// lower index.
int CZemColor::nearestIndex(unsigned long bgr) {
    int best = 1;
    long bestDistance = -1;
    for (int index = 1; index <= 255; ++index) {
        const unsigned long c = zem_aci_rgb(index);
        long distance = 0;
        for (int shift = 0; shift <= 16; shift += 8) {
            const long d = channel(c, shift) - channel(bgr, shift);
            distance += d * d;
        }
        if (bestDistance < 0 || distance < bestDistance) {
            best = index;
            bestDistance = distance;
        }
    }
    return best;
}
