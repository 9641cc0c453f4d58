#pragma once

// The value sets of display items: item kinds, bits of the flags word, colour
// modes and the property codes of CZemGDX::propSet and CZemGDX::redraw.

// The kind of a display item. A default item has kind 0, which no entry
// operation makes: it draws nothing, is never picked and adds no extents.
enum ZemDisplayObj {
    GDX_VL = 1,       // one vertex list, m_vl
    GDX_PT = 2,       // one point, m_pt
    GDX_REG = 3,      // region list, m_regl; element 0 is the outer contour
    GDX_TXT = 5,      // laid-out text, m_txtRegl, m_pt, m_txt, m_txtAlign
    GDX_PICTURE = 6,  // picture file m_txt or number m_pdMode, placement m_vl
};

// Bits of an item's flags word; bits 8 to 11 hold the colour mode.
enum ZemGdxFlag : unsigned long {
    GDX_FILL = 0x1,
    GDX_HATCH = 0x2,
    GDX_HIDE = 0x4,
    GDX_NOEXT = 0x8,
    GDX_EDGE = 0x10,
    GDX_PIC_FULL = 0x20,
    GDX_PIC_TRANSPARENT = 0x40,
    GDX_CMODE_MASK = 0xF00,
};

// Where the drawing colour of an item comes from: its own colour (0), the
// colour table entry of the mode (1 to 14) or the inverse background (15).
enum GDX_CMODE {
    GDX_CM_ITEM = 0,
    GDX_CM_HIGHLIGHT = 1,
    GDX_CM_REFER = 2,
    GDX_CM_AXIS = 3,
    GDX_CM_BASE = 4,
    GDX_CM_AUX = 5,
    GDX_CM_CONTRAST = 15,
};

// Codes that switch one flag bit of an item; other codes do nothing.
enum ZemGdxProp {
    GDX_PROP_SHOW = 1,              // clears GDX_HIDE
    GDX_PROP_HIDE = 2,              // sets GDX_HIDE
    GDX_PROP_EXT_ON = 3,            // clears GDX_NOEXT
    GDX_PROP_EXT_OFF = 4,           // sets GDX_NOEXT
    GDX_PROP_EDGE_ON = 5,           // sets GDX_EDGE
    GDX_PROP_EDGE_OFF = 6,          // clears GDX_EDGE
    GDX_PROP_FULL_ON = 7,           // sets GDX_PIC_FULL
    GDX_PROP_FULL_OFF = 8,          // clears GDX_PIC_FULL
    GDX_PROP_TRANSPARENT_ON = 9,    // sets GDX_PIC_TRANSPARENT
    GDX_PROP_TRANSPARENT_OFF = 10,  // clears GDX_PIC_TRANSPARENT
};

// The colour mode held in a flags word.
inline int zem_gdx_cmode(unsigned long flags) { return static_cast<int>((flags >> 8) & 15); }

// Configuration keys of the colours of new lists: colour table entries 1 to 5
// (index mode - 1), then the background.
inline constexpr const wchar_t* kZemGdxColorKeys[6] = {
    L"KAL_MENU\\COLOR\\HIGHLIGHT", L"KAL_MENU\\COLOR\\REFER", L"KAL_MENU\\COLOR\\AXIS",
    L"KAL_MENU\\COLOR\\BASE",      L"KAL_MENU\\COLOR\\AUX",   L"KAL_MENU\\COLOR\\BACKGROUND"};
