#include "TextTestSupport.h"

#include "ZemApp.h"
#include "ZemDataAccess.h"
#include "ZemDefaultHost.h"
#include "ZemResbufRead.h"
#include "ZemSmartResbuf.h"
#include "ZemTextHost.h"
#include "ZemTextRegl.h"

#include <cmath>
#include <limits>

namespace {

// A text item as stored: text (none when null), height, insertion point and rotation.
CZemDataItem storedText(const wchar_t* text, double height, const CZemPoint3d& at, double rotation) {
    CZemDataItem dir(CZemDataItem::typeDir);
    if (text) ZEM::dataItemSet(&dir, &CZemDataKey().set(L"TXT"), text);
    ZEM::dataItemSet(&dir, &CZemDataKey().set(L"HEIGHT"), height);
    ZEM::dataItemSet(&dir, &CZemDataKey().set(L"MOV"), at);
    ZEM::dataItemSet(&dir, &CZemDataKey().set(L"ROT"), rotation);
    return dir;
}

// An application object whose host answers what the test sets, and keeps
// the call it got.
class ScriptedApp : public CZemApp {
public:
    Zem::lFormat numberFormat() const override { return Zem::formatDecimal; }
    unsigned long backgroundColor() const override { return 0; }
    bool imageObject(CZemGDX*, CZemDataItem*, CZemDataItem*) override { return false; }
    bool hatchPattern(const wchar_t*, CZemArrayTempl<CZemArrayTempl<double>>&) override { return false; }
    int invokeHost(const wchar_t* function, resbuf* arguments, resbuf** result) override {
        m_function = function;
        m_arguments = ZEM::CSmartResbuf(ZEM::rbCopy(arguments));
        *result = m_answer.release();
        return m_status;
    }

    int m_status = ZEM::RTNORM;
    ZEM::CSmartResbuf m_answer;
    CZemString m_function;
    ZEM::CSmartResbuf m_arguments;
};

}  // namespace

TEST(TextHost, TheDefaultHostLaysStoredTextOutAndWhatCannotBeLaidOutEntersNothing) {
    ASSERT_EQ(zemAppPtr(), &CZemDefaultHost::instance());
    EXPECT_TRUE(CZemDefaultHost::instance().hostFunctionHas(L"zem_text_to_regl")) << "registered when loaded";

    // Height 3 at scale 0.5: 1.5 units high, turned a quarter, at (5, 2).
    const CZemDataItem text = storedText(L"AB", 3.0, CZemPoint3d(10, 4, 0), std::acos(-1.0) / 2);
    Regions regl;
    ASSERT_TRUE(zem_text_to_regl(&text, regl, 0.5));
    ASSERT_EQ(regl.len(), 2);
    const Box a = glyphBox(L'A'), b = glyphBox(L'B'), box = outerBox(regl);
    const double top = std::max(a.y1, b.y1), right = (a.x1 - a.x0) + 0.5 + b.x1;
    EXPECT_NEAR(box.x0, 5 - 1.5 * top, 1e-9);
    EXPECT_NEAR(box.x1, 5.0, 1e-9);
    EXPECT_NEAR(box.y0, 2 + 1.5 * a.x0, 1e-9);
    EXPECT_NEAR(box.y1, 2 + 1.5 * right, 1e-9);

    CZemGDX g = newList();
    const CZemColor blue = CZemColor().setColorIndex(5);
    ASSERT_TRUE(g.imageTxt(path({3}), 0x100, &text, blue, CZemMatrix3d(), 0.5));
    EXPECT_EQ(g.flagGet(0), 0x101UL) << "stored text is filled";
    EXPECT_TRUE(g.colorGet(0) == blue && g.fcolorGet(0) == blue && CZemString(g.txtGet(0)).isEmpty());
    Regions stored;
    g.geomGet(stored, 0);
    expectMoved(regl, stored, 0, 0, 0);
    CZemPoint3d lo, hi;
    g.extmaxGet(lo, hi);
    EXPECT_TRUE(std::fabs(lo.x - box.x0) < 1e-9 && std::fabs(hi.y - box.y1) < 1e-9);

    // Stored text that cannot be laid out enters nothing.
    CZemGDX h = newList();
    CZemDataItem value;
    value.setData(ZEM::mkResbuf(L"AB"), false);
    EXPECT_FALSE(h.imageTxt(path({1}), 0, static_cast<const CZemDataItem*>(nullptr), CZemColor(), CZemMatrix3d(), 1.0) ||
                 h.imageTxt(path({1}), 0, &value, CZemColor(), CZemMatrix3d(), 1.0));
    const double nan = std::numeric_limits<double>::quiet_NaN();
    Regions out = layout(L"A", L"BL");
    EXPECT_FALSE(zem_text_to_regl(nullptr, out, 1.0));
    EXPECT_EQ(out.len(), 0);
    for (const CZemDataItem& bad : {storedText(nullptr, 1, CZemPoint3d(), 0), storedText(L" ", 1, CZemPoint3d(), 0),
                                    storedText(L"A", 0, CZemPoint3d(), 0), storedText(L"A", 1, CZemPoint3d(), nan)}) {
        out = layout(L"A", L"BL");
        EXPECT_FALSE(zem_text_to_regl(&bad, out, 1.0));
        EXPECT_EQ(out.len(), 0) << "emptied";
        EXPECT_FALSE(h.imageTxt(path({1}), 0, &bad, CZemColor(), CZemMatrix3d(), 1.0));
    }
    EXPECT_FALSE(zem_text_to_regl(&value, out, 1.0)) << "a value, not a directory";
    const CZemDataItem fine = storedText(L"A", 1, CZemPoint3d(), 0);
    EXPECT_FALSE(zem_text_to_regl(&fine, out, nan));
    EXPECT_EQ(h.lenGet(), 0);

    // Arguments of another form: no answer.
    resbuf placeholder{};
    resbuf* result = &placeholder;
    const ZEM::CSmartResbuf scale(ZEM::mkResbuf(1.0, ZEM::RTREAL));
    EXPECT_EQ(zem_text_host_layout(nullptr, &result), ZEM::RTERROR);
    EXPECT_EQ(result, nullptr);
    EXPECT_EQ(zem_text_host_layout(scale, &result), ZEM::RTERROR);
    ZEM::CSmartResbuf twoScales(ZEM::rbToList(fine.mkLisp()));
    twoScales.append(ZEM::mkResbuf(1.0, ZEM::RTREAL)).append(ZEM::mkResbuf(2.0, ZEM::RTREAL));
    EXPECT_EQ(zem_text_host_layout(twoScales, &result), ZEM::RTERROR);
    EXPECT_EQ(result, nullptr);
}

TEST(TextHost, AnInstalledApplicationAnswersForTheHost) {
    ScriptedApp app;
    CZemApp* before = zemAppSet(&app);
    const CZemDataItem text = storedText(L"AB", 1.0, CZemPoint3d(), 0.0);
    Regions regl = layout(L"A", L"BL");

    app.m_status = 5099;
    app.m_answer = ZEM::CSmartResbuf(ZEM::mkResbuf(regl));
    EXPECT_FALSE(zem_text_to_regl(&text, regl, 2.5)) << "a failed call: its answer is freed, not read";
    EXPECT_EQ(regl.len(), 0);
    EXPECT_TRUE(app.m_function == L"zem_text_to_regl");
    const resbuf* sent = app.m_arguments;
    ASSERT_TRUE(sent && sent->restype == ZEM::RTLB);
    const resbuf* behind = ZEM::rbSkip(sent->rbnext);
    EXPECT_TRUE(ZEM::rbEqual(ZEM::CSmartResbuf(ZEM::rbCopy(sent->rbnext, behind)), ZEM::CSmartResbuf(text.mkLisp())))
        << "the item's own list";
    double scale = 0;
    const resbuf* rest = ZEM::rbSkip(sent);
    EXPECT_TRUE(rest && rest->restype == ZEM::RTREAL && ZEM::rbRead(rest, scale) && scale == 2.5 && !rest);

    app.m_status = ZEM::RTNORM;
    app.m_answer = ZEM::CSmartResbuf(ZEM::mkResbuf(3, ZEM::RTSHORT));
    EXPECT_FALSE(zem_text_to_regl(&text, regl, 1.0)) << "an answer that is no list";
    app.m_answer = ZEM::CSmartResbuf(ZEM::rbNew(ZEM::RTNIL));
    CZemGDX g = newList();
    EXPECT_FALSE(g.imageTxt(path({1}), 0, &text, CZemColor(), CZemMatrix3d(), 1.0)) << "nil: no regions";
    EXPECT_EQ(g.lenGet(), 0);

    const Regions square = layout(L"-", L"BL");
    app.m_answer = ZEM::CSmartResbuf(ZEM::mkResbuf(square));
    ASSERT_TRUE(zem_text_to_regl(&text, regl, 1.0));
    expectMoved(square, regl, 0, 0, 0);
    zemAppSet(before);
}
