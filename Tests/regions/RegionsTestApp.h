#pragma once

#include "ZemApp.h"
#include "ZemArrayTempl.h"

#include <map>
#include <string>
#include <vector>

namespace regtest {

// An application object whose hatch patterns are set by the test.
class TestApp : public CZemApp {
public:
    void setPattern(const wchar_t* name, std::vector<std::vector<double>> lines) { m_patterns[name] = lines; }

    Zem::lFormat numberFormat() const override { return Zem::formatDecimal; }
    unsigned long backgroundColor() const override { return 0; }
    bool imageObject(CZemGDX*, CZemDataItem*, CZemDataItem*) override { return false; }
    bool hatchPattern(const wchar_t* name, CZemArrayTempl<CZemArrayTempl<double>>& lines) override;
    int invokeHost(const wchar_t*, resbuf*, resbuf**) override { return 0; }

private:
    std::map<std::wstring, std::vector<std::vector<double>>> m_patterns;
};

// Installs an application object for the lifetime of the guard.
class AppGuard {
public:
    explicit AppGuard(CZemApp* app);
    ~AppGuard();

private:
    CZemApp* m_previous;
};

}  // namespace regtest
