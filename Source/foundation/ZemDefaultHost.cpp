#include "ZemDefaultHost.h"

#include "ZemColor.h"
#include "ZemConfig.h"
#include "ZemDataAccess.h"
#include "ZemResbuf.h"

namespace {

constexpr unsigned long kWhite = 0x00FFFFFF;

std::wstring functionKey(const wchar_t* name) {
    std::wstring key = name ? name : L"";
    for (wchar_t& c : key)
        if (c >= L'A' && c <= L'Z') c = static_cast<wchar_t>(c - L'A' + L'a');
    return key;
}

}  // namespace

CZemDefaultHost& CZemDefaultHost::instance() {
    // Never destroyed, so that code running at the end of the process still
    // finds an application object.
    static CZemDefaultHost* host = new CZemDefaultHost;
    return *host;
}

Zem::lFormat CZemDefaultHost::numberFormat() const {
    int format = Zem::formatDecimal;
    if (!ZEM::cfgRead(L"LUNITS", format) || format < Zem::formatScientific || format > Zem::formatFractional)
        return Zem::formatDecimal;
    return static_cast<Zem::lFormat>(format);
}

unsigned long CZemDefaultHost::backgroundColor() const {
    CZemColor color;
    if (!ZEM::color_from_cfg(color, ZEM::cfg_get(L"KAL_MENU\\COLOR\\BACKGROUND"))) return kWhite;
    return color.oleColor();
}

bool CZemDefaultHost::imageObject(CZemGDX* gdx, CZemDataItem* source, CZemDataItem* parameters) {
    if (!m_objectImage || !gdx || !source) return false;
    return m_objectImage(gdx, source, parameters);
}

bool CZemDefaultHost::hatchPattern(const wchar_t* name, CZemArrayTempl<CZemArrayTempl<double>>& lines) {
    return m_patterns.get(name, lines);
}

int CZemDefaultHost::invokeHost(const wchar_t* function, resbuf* arguments, resbuf** result) {
    if (result) *result = nullptr;
    const auto found = m_functions.find(functionKey(function));
    if (found == m_functions.end()) return ZEM::RTERROR;
    resbuf* answer = nullptr;
    const int status = found->second(arguments, &answer);
    if (result && status == ZEM::RTNORM) {
        *result = answer;
    } else {
        zemRelRb(answer);
    }
    return status;
}

void CZemDefaultHost::hostFunctionSet(const wchar_t* name, HostFunction function) {
    if (function) {
        m_functions[functionKey(name)] = std::move(function);
    } else {
        m_functions.erase(functionKey(name));
    }
}

bool CZemDefaultHost::hostFunctionHas(const wchar_t* name) const { return m_functions.count(functionKey(name)) != 0; }

CZemDefaultHost::ObjectImage CZemDefaultHost::objectImageSet(ObjectImage drawer) {
    const ObjectImage before = m_objectImage;
    m_objectImage = drawer;
    return before;
}
