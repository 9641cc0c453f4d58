#include "ZemSlidePalette.h"

#include "ZemAciTable.h"

namespace {

constexpr int kWhite = 7;
constexpr int kBlack = 0;

}  // namespace

// Slides are drawn white on black; on white paper the white would vanish.
int CZemSlidePalette::drawIndex(int color) const
{
    return color == kWhite && m_bkColor == kWhite ? kBlack : color;
}

unsigned long CZemSlidePalette::drawRGB(int color) const { return acadRGB(drawIndex(color)); }

unsigned long CZemSlidePalette::acadRGB(int color) { return zem_aci_rgb(color); }
