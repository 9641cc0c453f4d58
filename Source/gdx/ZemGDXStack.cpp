#include "ZemGDX.h"

namespace {

bool prefixMatch(const CZemArrayTempl<int>& stack, const CZemArrayTempl<int>& q) {
    if (q.isEmpty() || stack.len() < q.len()) return false;
    for (int k = 0; k < q.len(); ++k) {
        if (stack[k] != q[k]) return false;
    }
    return true;
}

bool exactMatch(const CZemArrayTempl<int>& stack, const CZemArrayTempl<int>& q) {
    return stack.len() == q.len() && prefixMatch(stack, q);
}

}  // namespace

CZemArrayTempl<int> CZemGDX::StackToItemNr(const CZemArrayTempl<int>& q) const {
    CZemArrayTempl<int> numbers;
    for (int i = 0; i < lenGet(); ++i) {
        if (prefixMatch(itemAt(i).m_stack, q)) numbers.append(i);
    }
    return numbers;
}

int CZemGDX::stackGet() const {
    int highest = 0;
    for (int i = 0; i < lenGet(); ++i) {
        const CZemArrayTempl<int>& stack = itemAt(i).m_stack;
        if (!stack.isEmpty() && stack[0] > highest) highest = stack[0];
    }
    return highest;
}

// An item at exactly q resets the result to 0, so the answer depends on
// whether the group's own item comes before or after its children.
int CZemGDX::stackGet(const CZemArrayTempl<int>& q) const {
    int result = -1;
    for (int i = 0; i < lenGet(); ++i) {
        const CZemArrayTempl<int>& stack = itemAt(i).m_stack;
        if (!prefixMatch(stack, q)) continue;
        if (stack.len() == q.len()) {
            result = 0;
        } else if (stack[q.len()] > result) {
            result = stack[q.len()];
        }
    }
    return result;
}

// Every matching item takes the move delta = m . old^-1 that brings the
// reference item from its matrix old to m. Items whose matrix equals old get
// m itself, so that the move carries no rounding into them.
bool CZemGDX::mtxSet(const CZemArrayTempl<int>& q, const CZemMatrix3d& target) {
    const CZemMatrix3d m(target);  // target may be the matrix of an item that moves
    const CZemArrayTempl<int> numbers = StackToItemNr(q);
    if (numbers.isEmpty()) return false;
    int reference = numbers[-1];
    for (int k = 0; k < numbers.len(); ++k) {
        if (itemAt(numbers[k]).m_stack.len() == q.len()) {
            reference = numbers[k];
            break;
        }
    }
    const CZemMatrix3d old = itemAt(reference).m_mtx;
    if (!(old == m)) {
        const CZemMatrix3d delta = m * old.inverse();
        for (int k = 0; k < numbers.len(); ++k) {
            CZemMatrix3d& mtx = m_displayList[numbers[k]].m_mtx;
            if (mtx == old) {
                mtx = m;
            } else {
                mtx *= delta;
            }
        }
    }
    projMtxSet(m_projMtx);
    return true;
}

bool CZemGDX::cModeSet(const CZemArrayTempl<int>& q, GDX_CMODE mode) {
    const CZemArrayTempl<int> numbers = StackToItemNr(q);
    for (int k = 0; k < numbers.len(); ++k) cFlagSet(numbers[k], mode);
    return !numbers.isEmpty();
}

// flagSet recomputes the extents after every item; switching all bits first
// and recomputing once gives the same extents.
bool CZemGDX::propSet(const CZemArrayTempl<int>& q, unsigned long prop) {
    const CZemArrayTempl<int> numbers = StackToItemNr(q);
    if (numbers.isEmpty()) return false;
    for (int k = 0; k < numbers.len(); ++k) switchFlag(numbers[k], prop);
    projMtxSet(m_projMtx);
    return true;
}

bool CZemGDX::redraw(const CZemArrayTempl<int>& q, unsigned long prop) {
    if (lenGet() == 0) return false;
    bool switched = false;
    for (int i = 0; i < lenGet(); ++i) {
        if (q.isEmpty() || prefixMatch(itemAt(i).m_stack, q)) switched = switchFlag(i, prop) || switched;
    }
    if (switched) projMtxSet(m_projMtx);
    return true;
}

bool CZemGDX::hatchSet(const CZemArrayTempl<int>& q, const CZemHatchProp& h) {
    const CZemArrayTempl<int> numbers = StackToItemNr(q);
    for (int k = 0; k < numbers.len(); ++k) {
        CZemHatchProp& hatch = m_displayList[numbers[k]].m_hatch;
        hatch.name = h.name;
        hatch.angle = h.angle;
        hatch.scale = h.scale;
        hatch.flag = h.flag;
    }
    return !numbers.isEmpty();
}

bool CZemGDX::pdModeSet(const CZemArrayTempl<int>& q, unsigned long mode) {
    bool found = false;
    for (int i = 0; i < lenGet(); ++i) {
        if (!exactMatch(itemAt(i).m_stack, q)) continue;
        m_displayList[i].m_pdMode = mode;
        found = true;
    }
    return found;
}

bool CZemGDX::pdSizeSet(const CZemArrayTempl<int>& q, double size) {
    bool found = false;
    for (int i = 0; i < lenGet(); ++i) {
        if (!exactMatch(itemAt(i).m_stack, q)) continue;
        m_displayList[i].m_pdSize = size;
        found = true;
    }
    return found;
}

// From the highest number down, so that the lower numbers stay valid; the
// extents are recomputed once, after the last removal.
bool CZemGDX::removeItemStack(const CZemArrayTempl<int>& q) {
    CZemArrayTempl<int> numbers = StackToItemNr(q);
    if (numbers.isEmpty()) return false;
    numbers.revert();
    for (int k = 0; k < numbers.len(); ++k) m_displayList.removeAt(numbers[k]);
    projMtxSet(m_projMtx);
    return true;
}

bool CZemGDX::clear(const CZemArrayTempl<int>& q) { return removeItemStack(q); }

void CZemGDX::flagSet(int i, unsigned long prop) {
    if (switchFlag(i, prop)) projMtxSet(m_projMtx);
}

// Bits 12 and up are cleared with the old mode; the flag bits 0 to 7 stay.
void CZemGDX::cFlagSet(int i, GDX_CMODE mode) {
    if (i < 0 || i >= lenGet()) return;
    unsigned long& flags = m_displayList[i].m_flags;
    flags = (flags & 0xFFUL) | ((static_cast<unsigned long>(mode) & 15UL) << 8);
}

bool CZemGDX::removeItem(int i) {
    if (i < 0 || i >= lenGet()) return false;
    m_displayList.removeAt(i);
    projMtxSet(m_projMtx);
    return true;
}

// Codes 1 and 2 clear and set GDX_HIDE, 3 and 4 GDX_NOEXT; from 5 on the odd
// code sets the bit. False for any other code and for an invalid number.
bool CZemGDX::switchFlag(int i, unsigned long prop) {
    static const unsigned long bits[] = {GDX_HIDE, GDX_HIDE, GDX_NOEXT, GDX_NOEXT, GDX_EDGE,
                                         GDX_EDGE, GDX_PIC_FULL, GDX_PIC_FULL, GDX_PIC_TRANSPARENT,
                                         GDX_PIC_TRANSPARENT};
    if (i < 0 || i >= lenGet() || prop < GDX_PROP_SHOW || prop > GDX_PROP_TRANSPARENT_OFF) return false;
    const unsigned long bit = bits[prop - 1];
    const bool set = prop <= GDX_PROP_EXT_OFF ? prop % 2 == 0 : prop % 2 == 1;
    unsigned long& flags = m_displayList[i].m_flags;
    flags = set ? flags | bit : flags & ~bit;
    return true;
}
