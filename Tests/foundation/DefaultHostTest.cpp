#include "ZemDataAccess.h"
#include "ZemDefaultHost.h"
#include "ZemResbufRead.h"
#include "ZemSmartResbuf.h"

#include "DataTestSupport.h"

#include <gtest/gtest.h>

namespace {

// An application object of its own, as applications install one.
class OwnApp : public CZemApp {
public:
    Zem::lFormat numberFormat() const override { return Zem::formatArchitectural; }
    unsigned long backgroundColor() const override { return 0; }
    bool imageObject(CZemGDX*, CZemDataItem*, CZemDataItem*) override { return true; }
    bool hatchPattern(const wchar_t*, CZemArrayTempl<CZemArrayTempl<double>>&) override { return false; }
    int invokeHost(const wchar_t*, resbuf*, resbuf**) override { return ZEM::RTNORM; }
};

int g_drawerCalls = 0;

bool drawer(CZemGDX*, CZemDataItem*, CZemDataItem*) { return ++g_drawerCalls > 0; }

void setConfig(const wchar_t* key, int value) { ZEM::dataItemSet(ZEM::cfg_dir_make(L""), &CZemDataKey().set(key), value); }

}  // namespace

TEST(DefaultHost, AnswersFromTheConfigurationUnlessAnApplicationIsInstalled) {
    datatest::resetConfiguration();
    CZemApp* app = zemAppPtr();
    ASSERT_EQ(&CZemDefaultHost::instance(), app);
    EXPECT_TRUE(app->numberFormat() == Zem::formatDecimal && app->backgroundColor() == 0xFFFFFFUL);
    setConfig(L"LUNITS", 4);
    ZEM::dataItemSet(ZEM::cfg_dir_make(L""), &CZemDataKey().set(L"KAL_MENU\\COLOR\\BACKGROUND"), L"255,0,0");
    EXPECT_EQ(Zem::formatArchitectural, app->numberFormat());
    EXPECT_EQ(0x0000FFUL, app->backgroundColor()) << "red in the low byte of a Windows colour";
    setConfig(L"LUNITS", 9);
    setConfig(L"KAL_MENU\\COLOR\\BACKGROUND", 5);
    EXPECT_EQ(Zem::formatDecimal, app->numberFormat()) << "a format out of range";
    EXPECT_EQ(CZemColor().setColorIndex(5).oleColor(), app->backgroundColor());

    OwnApp own;
    EXPECT_TRUE(zemAppSet(&own) == nullptr && zemAppPtr() == &own);
    EXPECT_TRUE(zemAppSet(nullptr) == &own && zemAppPtr() == app);
    datatest::resetConfiguration();
}

TEST(DefaultHost, HostFunctionsByNameAndTheHookedDrawer) {
    CZemDefaultHost& host = CZemDefaultHost::instance();
    const ZEM::CSmartResbuf two(ZEM::mkResbuf(2.5, ZEM::RTREAL)), minus(ZEM::mkResbuf(-1.0, ZEM::RTREAL));
    resbuf* result = reinterpret_cast<resbuf*>(&host);
    EXPECT_TRUE(host.invokeHost(L"zem_twice", two, &result) == ZEM::RTERROR && !result) << "an unknown function";
    host.hostFunctionSet(L"ZEM_TWICE", [](const resbuf* in, resbuf** out) {
        double value = 0.0;
        ZEM::rbRead(in, value);
        *out = ZEM::mkResbuf(2 * value, ZEM::RTREAL);
        return static_cast<int>(value > 0 ? ZEM::RTNORM : ZEM::RTERROR);
    });
    ASSERT_EQ(ZEM::RTNORM, host.invokeHost(L"zem_Twice", two, &result)) << "names ignore case";
    EXPECT_EQ(5.0, result->resval.rreal);
    zemRelRb(result);
    EXPECT_EQ(ZEM::RTNORM, host.invokeHost(L"zem_twice", two, nullptr)) << "an answer nobody takes is freed";
    EXPECT_TRUE(host.invokeHost(L"zem_twice", minus, &result) == ZEM::RTERROR && !result) << "a failing call hands out nothing";
    host.hostFunctionSet(L"zem_twice", nullptr);
    EXPECT_FALSE(host.hostFunctionHas(L"ZEM_TWICE"));

    const CZemDefaultHost::ObjectImage before = host.objectImageSet(nullptr);
    CZemGDX* list = reinterpret_cast<CZemGDX*>(&host);
    CZemDataItem source;
    EXPECT_FALSE(host.imageObject(list, &source, nullptr)) << "nothing draws without a drawer";
    host.objectImageSet(&drawer);
    EXPECT_TRUE(host.imageObject(list, &source, nullptr));
    EXPECT_FALSE(host.imageObject(nullptr, &source, nullptr) || host.imageObject(list, nullptr, nullptr));
    EXPECT_EQ(1, g_drawerCalls) << "without a list or an object the drawer is not asked";
    EXPECT_EQ(&drawer, host.objectImageSet(before));
}
