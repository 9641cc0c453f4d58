#include "ZemDataAccess.h"
#include "ZemDefaultHost.h"
#include "ZemResbuf.h"
#include "ZemResbufRead.h"
#include "ZemSmartResbuf.h"

#include "DataTestSupport.h"

#include <gtest/gtest.h>

namespace {

class DefaultHost : public ::testing::Test {
protected:
    void SetUp() override { datatest::resetConfiguration(); }
    void TearDown() override {
        datatest::resetConfiguration();
        zemAppSet(nullptr);
    }
    static CZemDataItem* root() { return ZEM::cfg_dir_make(L""); }
};

// An application object of its own, as applications install one.
class OwnApp : public CZemApp {
public:
    Zem::lFormat numberFormat() const override { return Zem::formatArchitectural; }
    unsigned long backgroundColor() const override { return 0; }
    bool imageObject(CZemGDX*, CZemDataItem*, CZemDataItem*) override { return true; }
    bool hatchPattern(const wchar_t*, CZemArrayTempl<CZemArrayTempl<double>>&) override { return false; }
    int invokeHost(const wchar_t*, resbuf*, resbuf**) override { return ZEM::RTNORM; }
};

CZemGDX* const kSomeList = reinterpret_cast<CZemGDX*>(0x1000);
int g_drawerCalls = 0;

bool drawer(CZemGDX* gdx, CZemDataItem* source, CZemDataItem*) {
    ++g_drawerCalls;
    return gdx == kSomeList && source != nullptr;
}

}  // namespace

TEST_F(DefaultHost, TheInstalledApplicationOrTheDefaultHostAnswers) {
    ASSERT_EQ(&CZemDefaultHost::instance(), zemAppPtr());
    OwnApp own;
    EXPECT_EQ(nullptr, zemAppSet(&own));
    EXPECT_EQ(&own, zemAppPtr());
    EXPECT_EQ(Zem::formatArchitectural, zemAppPtr()->numberFormat());
    EXPECT_EQ(&own, zemAppSet(nullptr));
    EXPECT_EQ(&CZemDefaultHost::instance(), zemAppPtr());
}

TEST_F(DefaultHost, NumberFormatAndBackgroundFromTheConfiguration) {
    CZemApp* app = zemAppPtr();
    EXPECT_EQ(Zem::formatDecimal, app->numberFormat());
    EXPECT_EQ(0xFFFFFFUL, app->backgroundColor());
    ZEM::dataItemSet(root(), &CZemDataKey().set(L"LUNITS"), 4);
    ZEM::dataItemSet(root(), &CZemDataKey().set(L"KAL_MENU\\COLOR\\BACKGROUND"), L"255,0,0");
    EXPECT_EQ(Zem::formatArchitectural, app->numberFormat());
    EXPECT_EQ(0x0000FFUL, app->backgroundColor()) << "red in the low byte of a Windows colour";
    ZEM::dataItemSet(root(), &CZemDataKey().set(L"LUNITS"), 9);
    ZEM::dataItemSet(root(), &CZemDataKey().set(L"KAL_MENU\\COLOR\\BACKGROUND"), 5);
    EXPECT_EQ(Zem::formatDecimal, app->numberFormat()) << "a format out of range";
    CZemColor blue;
    blue.setColorIndex(5);
    EXPECT_EQ(blue.oleColor(), app->backgroundColor());
}

TEST_F(DefaultHost, HostFunctionsByNameOwnTheirAnswerUntilItIsGiven) {
    CZemDefaultHost& host = CZemDefaultHost::instance();
    const ZEM::CSmartResbuf arguments(ZEM::mkResbuf(2.5, ZEM::RTREAL));
    resbuf* result = reinterpret_cast<resbuf*>(&host);
    EXPECT_EQ(ZEM::RTERROR, host.invokeHost(L"zem_twice", arguments, &result));
    EXPECT_EQ(nullptr, result) << "an unknown function";

    host.hostFunctionSet(L"ZEM_TWICE", [](const resbuf* in, resbuf** out) {
        double value = 0.0;
        if (!ZEM::rbRead(in, value)) return static_cast<int>(ZEM::RTERROR);
        *out = ZEM::mkResbuf(2 * value, ZEM::RTREAL);
        return static_cast<int>(value > 0 ? ZEM::RTNORM : ZEM::RTERROR);
    });
    EXPECT_TRUE(host.hostFunctionHas(L"zem_Twice"));
    ASSERT_EQ(ZEM::RTNORM, host.invokeHost(L"zem_twice", arguments, &result));
    ASSERT_NE(nullptr, result);
    EXPECT_DOUBLE_EQ(5.0, result->resval.rreal);
    zemRelRb(result);
    EXPECT_EQ(ZEM::RTNORM, host.invokeHost(L"zem_twice", arguments, nullptr)) << "the answer is freed";
    const ZEM::CSmartResbuf negative(ZEM::mkResbuf(-1.0, ZEM::RTREAL));
    EXPECT_EQ(ZEM::RTERROR, host.invokeHost(L"zem_twice", negative, &result));
    EXPECT_EQ(nullptr, result) << "a failing call hands out nothing";
    host.hostFunctionSet(L"zem_twice", nullptr);
    EXPECT_FALSE(host.hostFunctionHas(L"ZEM_TWICE"));
    EXPECT_EQ(ZEM::RTERROR, host.invokeHost(nullptr, nullptr, &result));
}

TEST_F(DefaultHost, StoredObjectsAreDrawnByTheHookedDrawer) {
    CZemDefaultHost& host = CZemDefaultHost::instance();
    const CZemDefaultHost::ObjectImage before = host.objectImageSet(nullptr);
    CZemDataItem source(CZemDataItem::typeDir);
    EXPECT_FALSE(host.imageObject(kSomeList, &source, nullptr)) << "nothing draws without a drawer";
    host.objectImageSet(&drawer);
    g_drawerCalls = 0;
    EXPECT_TRUE(host.imageObject(kSomeList, &source, nullptr));
    EXPECT_FALSE(host.imageObject(nullptr, &source, nullptr));
    EXPECT_FALSE(host.imageObject(kSomeList, nullptr, nullptr));
    EXPECT_EQ(1, g_drawerCalls) << "no list or no object: the drawer is not asked";
    EXPECT_EQ(&drawer, host.objectImageSet(before));
}
