#pragma once

#include "ZemArrayTempl.h"
#include "ZemColor.h"
#include "ZemDisplayItem.h"
#include "ZemGdxTypes.h"
#include "ZemHatchProp.h"
#include "ZemMatrix3d.h"
#include "ZemPoint3d.h"
#include "ZemString.h"
#include "ZemVector3d.h"
#include "ZemVertexArray.h"

class CZemDataItem;

// A retained 3D display list: an ordered array of display items with the
// matrices, extents, colour table and point defaults it is drawn with.
// Items are numbered by their present index; stacks (integer paths carried by
// every item) name groups across reorderings. Item numbers in accessors read
// through the array's reading index: negative counts from the end, a number
// behind the end reads one shared default item.
class CZemGDX {
public:
    // Background from the application object; point size and style and the
    // colour table entries 1 to 5 from the configuration (KAL_MENU\COLOR\...).
    // A point size or style missing there is 0.
    CZemGDX();
    // Reads no configuration; the colour table stays empty.
    CZemGDX(const CZemColor& back, const CZemMatrix3d& proj, double pdSize, unsigned long pdMode,
            const CZemPoint3d& viewMin, const CZemPoint3d& viewMax);
    CZemGDX(const CZemGDX& other);
    CZemGDX& operator=(const CZemGDX& other);
    ~CZemGDX() = default;

    // --- Accessors -------------------------------------------------------
    int lenGet() const { return m_displayList.len(); }
    const CZemArrayTempl<CZemDisplayItem>& getDisplayList() const { return m_displayList; }
    ZemDisplayObj typeGet(int i) const { return itemAt(i).m_type; }
    // The whole flags word, colour mode in bits 8 to 11.
    unsigned long flagGet(int i) const { return itemAt(i).m_flags; }
    const CZemColor& colorGet(int i) const { return itemAt(i).m_color; }
    const CZemColor& fcolorGet(int i) const { return itemAt(i).m_fcolor; }
    const CZemArrayTempl<double>& linetypeGet(int i) const { return itemAt(i).m_linetype; }
    double ltscaleGet(int i) const { return itemAt(i).m_ltscale; }
    int thicknGet(int i) const { return itemAt(i).m_thickn; }
    const CZemMatrix3d& mtxGet(int i) const { return itemAt(i).m_mtx; }
    // Copy the item's vertex list, point, region list or text regions; true.
    bool geomGet(CZemVertexArray& out, int i) const;
    bool geomGet(CZemPoint3d& out, int i) const;
    bool geomGet(CZemArrayTempl<CZemVertexArray>& out, int i) const;
    bool geomGet(CZemArrayTempl<CZemArrayTempl<CZemVertexArray>>& out, int i) const;
    const wchar_t* txtGet(int i) const { return itemAt(i).m_txt; }
    const wchar_t* txtAlignGet(int i) const { return itemAt(i).m_txtAlign; }
    CZemPoint3d txtPointGet(int i) const { return itemAt(i).m_pt; }
    // The item's point style and size, or the list's where the item leaves
    // the choice to it (style 0xFFFFFFFF, size 0.0).
    unsigned long pdModeGet(int i) const;
    double pdSizeGet(int i) const;
    // File name and number of a picture item; true if it names a picture
    // (number other than 0x7FFFFFFF, or a file name).
    bool pictureGet(int i, CZemString& file, int& number) const;
    // False if i is not below lenGet().
    bool hatchGet(int i, CZemHatchProp& out) const;
    bool itemStackGet(CZemArrayTempl<int>& out, int i) const;

    double pdSizeGet() const { return m_pdSize; }
    unsigned long pdModeGet() const { return m_pdMode; }
    bool pdSizeSet(double size);
    bool pdModeSet(unsigned long mode);
    const CZemColor& backColorGet() const { return m_backColor; }
    bool backColorSet(const CZemColor& color);

    // Colour table entry of mode m (index m-1): mode 0 reads the last entry,
    // a mode behind the table one shared default colour.
    const CZemColor& colorTabGet(GDX_CMODE m) const;
    // False for modes 0 and above 14; otherwise stores c, growing the table.
    bool ColorTabSet(GDX_CMODE m, const CZemColor& c);
    int ColorTabLenGet() const { return m_colorTab.len(); }

    const CZemMatrix3d& projMtxGet() const { return m_projMtx; }
    const CZemMatrix3d& viewMtxGet() const { return m_viewMtx; }
    const CZemMatrix3d& zoomMtxGet() const { return m_zoomMtx; }
    const CZemMatrix3d& viewDirectionMtxGet() const { return m_viewDirectionMtx; }

    // --- Entry (ZemGDXEntry.cpp) ------------------------------------------
    // Each copies its arguments into a new item and widens the extents by the
    // item's bounds through mtx and the projection, unless flags hold
    // GDX_NOEXT. Extents of one single point count as none: the next entry
    // replaces them. Always true.
    bool imageVl(const CZemArrayTempl<int>& stack, unsigned long flags, const CZemVertexArray& vl,
                 const CZemColor& color, const CZemMatrix3d& mtx, const CZemArrayTempl<double>& linetype,
                 double ltscale, unsigned long thickn);
    bool imagePt(const CZemArrayTempl<int>& stack, unsigned long flags, const CZemPoint3d& pt, const CZemColor& color,
                 const CZemMatrix3d& mtx, double pdSize, unsigned long pdMode);
    // Extents from the outer contour (element 0) alone.
    bool imageReg(const CZemArrayTempl<int>& stack, unsigned long flags, const CZemArrayTempl<CZemVertexArray>& regl,
                  const CZemColor& color, const CZemMatrix3d& mtx, const CZemArrayTempl<double>& linetype,
                  double ltscale, unsigned long thickn, const CZemColor& fcolor, const CZemHatchProp& hatch);
    // With the default hatch: a quarter of pi, scale 10.0.
    bool imageReg(const CZemArrayTempl<int>& stack, unsigned long flags, const CZemArrayTempl<CZemVertexArray>& regl,
                  const CZemColor& color, const CZemMatrix3d& mtx, const CZemArrayTempl<double>& linetype,
                  double ltscale, unsigned long thickn, CZemColor fcolor);
    // Inserts the picture at index 0, beneath everything; extents untouched.
    bool imagePicture(const CZemArrayTempl<int>& stack, unsigned long flags, const wchar_t* file, int number,
                      const CZemPoint3d& p1, const CZemPoint3d& p2);
    // Appends copies of the items, extents untouched; true if there were any.
    bool addDisplayList(const CZemArrayTempl<CZemDisplayItem>& items);
    // Empties the list and sets both extents to the origin; the rest stays.
    bool clear();

    // --- Text (Source/text/ZemGDXText.cpp) --------------------------------
    // Enters a text laid out in the stroke font at point, aligned by the word
    // align (TL, TC, TR, CL, CC, CR, BC, BR; else baseline left). Always true.
    bool imageTxt(const CZemArrayTempl<int>& stack, unsigned long flags, const wchar_t* text, const CZemColor& color,
                  const CZemMatrix3d& mtx, const wchar_t* align, CZemPoint3d point);
    // Enters a stored text laid out by the host (zem_text_to_regl), filled:
    // the item's flags hold GDX_FILL. False, list unchanged, without regions.
    bool imageTxt(const CZemArrayTempl<int>& stack, unsigned long flags, const CZemDataItem* text,
                  const CZemColor& color, const CZemMatrix3d& mtx, double scale);
    // Set the text, alignment word or insertion point of every item of group
    // q, whatever its kind, and lay each out anew. False for a null text.
    bool txtSet(const CZemArrayTempl<int>& q, const wchar_t* text);
    bool txtAlignSet(const CZemArrayTempl<int>& q, const wchar_t* align);
    bool txtPointSet(const CZemArrayTempl<int>& q, CZemPoint3d point);

    // --- Stacks (ZemGDXStack.cpp) -----------------------------------------
    // Numbers of the items whose stack begins with q, ascending; none for an
    // empty q.
    CZemArrayTempl<int> StackToItemNr(const CZemArrayTempl<int>& q) const;
    // The highest first stack element, at least 0.
    int stackGet() const;
    // The highest element right below q; 0 if the last item at exactly q
    // came after all children seen so far; -1 if nothing lies at or below q.
    int stackGet(const CZemArrayTempl<int>& q) const;
    // Moves the group q rigidly so that its reference item (the first at
    // exactly q, else the last match) gets matrix m.
    bool mtxSet(const CZemArrayTempl<int>& q, const CZemMatrix3d& m);
    bool cModeSet(const CZemArrayTempl<int>& q, GDX_CMODE mode);
    // Applies a property code to the group, then recomputes the extents.
    bool propSet(const CZemArrayTempl<int>& q, unsigned long prop);
    // As propSet, but an empty q means the whole list; false only when empty.
    bool redraw(const CZemArrayTempl<int>& q, unsigned long prop);
    bool hatchSet(const CZemArrayTempl<int>& q, const CZemHatchProp& h);
    // Point style and size of the items whose stack equals q exactly.
    bool pdModeSet(const CZemArrayTempl<int>& q, unsigned long mode);
    bool pdSizeSet(const CZemArrayTempl<int>& q, double size);
    bool removeItemStack(const CZemArrayTempl<int>& q);
    // Removes the group q; true if anything was removed.
    bool clear(const CZemArrayTempl<int>& q);

    // --- View (ZemGDXView.cpp) --------------------------------------------
    // Sets the projection and recomputes the extents over all items.
    bool projMtxSet(const CZemMatrix3d& m);
    bool viewMtxSet(const CZemMatrix3d& m);
    bool zoomMtxSet(const CZemMatrix3d& m);
    bool viewDirectionMtxSet(const CZemMatrix3d& m);
    bool viewDirectionHvcSet(const CZemVector3d& v);
    // One of P, N, S, O, W, NO, NW, SO, SW (case-sensitive); false otherwise.
    bool viewDirectionSet(CZemString word);
    bool extmaxGet(CZemPoint3d& min, CZemPoint3d& max) const;
    // Widens min and max (not reset) by the bounds of group q; false if
    // nothing matches.
    bool extmaxGet(const CZemArrayTempl<int>& q, CZemPoint3d& min, CZemPoint3d& max) const;
    bool extMaxViewSet(const CZemPoint3d& min, const CZemPoint3d& max);
    bool extMaxViewSet();
    // The view extents, or the list's extents where the view has none.
    bool extMaxViewGet(CZemPoint3d& min, CZemPoint3d& max) const;
    // A target point in pixels taken back through zoom, projection, view and
    // view direction into list space.
    CZemPoint3d imagePtWc(const CZemPoint3d& p);

    // --- Order and picking (ZemGDXPick.cpp) -------------------------------
    // Stable drawing order: pictures, regions, other kinds, colour mode 2,
    // colour mode 1. False on an empty list.
    bool displListSort();
    // First stack element of the topmost vertex list, region outline or point
    // within 5.0 list units of the target point p; -1 if none. Leaves the
    // list in reversed drawing order.
    int imageItemGet(const CZemPoint3d& p);

protected:
    // Lays out the text of item i (a writing index) into its text regions,
    // then recomputes the extents. True.
    bool txtReglUpd(int i);
    void flagSet(int i, unsigned long prop);
    void cFlagSet(int i, GDX_CMODE mode);
    bool removeItem(int i);

    CZemColor m_backColor;
    double m_pdSize = 0.0;
    unsigned long m_pdMode = 0;
    CZemMatrix3d m_projMtx;
    CZemMatrix3d m_viewMtx;
    CZemMatrix3d m_zoomMtx;
    CZemPoint3d m_extMin, m_extMax;
    CZemPoint3d m_extViewMin, m_extViewMax;
    CZemArrayTempl<CZemDisplayItem> m_displayList;
    CZemArrayTempl<CZemColor> m_colorTab;
    CZemMatrix3d m_viewDirectionMtx;

private:
    static constexpr int kItemLines = (sizeof(CZemDisplayItem) + 63) / 64;

    const CZemDisplayItem& itemAt(int i) const { return m_displayList[i]; }
    // Asks for what a full pass at item i will read some items later.
    void prefetchAhead(int i) const;
    // Asks for the first lines of item i, all of it by default.
    void prefetchItem(int i, int lines = kItemLines) const;
    // The same, to the second-level cache only: for reads so far ahead that
    // the first-level cache would not keep what comes in.
    void prefetchItemFar(int i, int lines = kItemLines) const;
    bool switchFlag(int i, unsigned long prop);
    void foldExtents(const CZemPoint3d& lo, const CZemPoint3d& hi);
    void foldVertexList(const CZemVertexArray& vl, const CZemMatrix3d& mtx);
    static void itemBounds(CZemDisplayItem& item, const CZemMatrix3d& t, CZemPoint3d& lo, CZemPoint3d& hi);
    static void vertexListBounds(const CZemVertexArray& vl, const CZemMatrix3d& t, CZemPoint3d& lo, CZemPoint3d& hi);
    CZemArrayTempl<int> drawingOrder(bool topFirst) const;
    // Moves the items into the given order, which it marks off as it goes.
    void reorder(CZemArrayTempl<int> order);
};
