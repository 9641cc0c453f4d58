#pragma once

#include "ZemApp.h"
#include "ZemPatternLibrary.h"

#include <functional>
#include <map>
#include <string>

// The application object that answers while the application has installed
// none. Configuration keys (ZemConfig.h):
//   LUNITS                      int     number format 1 to 5 (default 2, decimal)
//   KAL_MENU\COLOR\BACKGROUND   colour  background (default white)
//   PATTERN_FILES               files   hatch pattern files (ZemPatternLibrary.h)
// Stored objects are drawn by a drawer that the display list library hooks
// in, as this library cannot draw into a list itself; host functions are
// the ones registered by name.
class CZemDefaultHost : public CZemApp {
public:
    // A host function: reads arguments (still the caller's), and on success
    // returns 5100 with a new chain, or null, in result.
    typedef std::function<int(const resbuf* arguments, resbuf** result)> HostFunction;
    typedef bool (*ObjectImage)(CZemGDX* gdx, CZemDataItem* source, CZemDataItem* parameters);

    CZemDefaultHost() = default;
    CZemDefaultHost(const CZemDefaultHost&) = delete;
    CZemDefaultHost& operator=(const CZemDefaultHost&) = delete;

    // The process's default host, which zemAppPtr gives without an installed one.
    static CZemDefaultHost& instance();

    Zem::lFormat numberFormat() const override;
    unsigned long backgroundColor() const override;
    // The hooked drawer's answer; false without a drawer or arguments.
    bool imageObject(CZemGDX* gdx, CZemDataItem* source, CZemDataItem* parameters) override;
    // From the pattern files; false, lines empty, for an unknown name.
    bool hatchPattern(const wchar_t* name, CZemArrayTempl<CZemArrayTempl<double>>& lines) override;
    // The registered function of that name (ASCII case ignored); -5001 with
    // a null result for an unknown one. A null result pointer drops the answer.
    int invokeHost(const wchar_t* function, resbuf* arguments, resbuf** result) override;

    // Registers a host function under a name, replacing one of that name;
    // an empty function removes it.
    void hostFunctionSet(const wchar_t* name, HostFunction function);
    bool hostFunctionHas(const wchar_t* name) const;
    // Hooks in the drawer of stored objects (null unhooks); returns the one before.
    ObjectImage objectImageSet(ObjectImage drawer);

    CZemPatternLibrary& patterns() { return m_patterns; }

private:
    CZemPatternLibrary m_patterns;
    std::map<std::wstring, HostFunction> m_functions;
    ObjectImage m_objectImage = nullptr;
};
