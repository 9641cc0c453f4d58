#include "RegionsTestApp.h"

namespace regtest {

bool TestApp::hatchPattern(const wchar_t* name, CZemArrayTempl<CZemArrayTempl<double>>& lines) {
    const auto found = m_patterns.find(name);
    if (found == m_patterns.end()) return false;
    for (const std::vector<double>& line : found->second) {
        CZemArrayTempl<double> entries;
        for (double v : line) entries.append(v);
        lines.append(entries);
    }
    return true;
}

AppGuard::AppGuard(CZemApp* app) : m_previous(zemAppSet(app)) {}

AppGuard::~AppGuard() { zemAppSet(m_previous); }

}  // namespace regtest
