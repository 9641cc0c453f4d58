#pragma once

#include "ZemConfig.h"
#include "ZemMessages.h"
#include "ZemTextUtil.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

// Helpers of the data tests: a fresh folder per test, files written byte for
// byte, captured diagnostics and a clean configuration.
namespace datatest {

inline std::wstring widen(const std::string& ascii) { return std::wstring(ascii.begin(), ascii.end()); }

// An empty folder in the build tree for one test.
inline std::string freshFolder(const std::string& name) {
    const std::filesystem::path folder = std::filesystem::path(ZEM_BUILD_DIR) / "data-tests" / name;
    std::error_code ignored;
    std::filesystem::remove_all(folder, ignored);
    std::filesystem::create_directories(folder);
    return folder.string();
}

inline void writeBytes(const std::string& path, const std::string& bytes) { std::ofstream(path, std::ios::binary) << bytes; }

inline std::string readBytes(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

inline void setEnv(const char* name, const char* value) {
#ifdef _WIN32
    _putenv_s(name, value ? value : "");
#else
    if (value) setenv(name, value, 1); else unsetenv(name);
#endif
}

// Collects what ZEM::dump writes while it lives.
class DumpCapture {
public:
    DumpCapture() : m_previous(ZEM::setDumpSink(&DumpCapture::sink)) { text().clear(); }
    ~DumpCapture() { ZEM::setDumpSink(m_previous); }
    static std::wstring& text() {
        static std::wstring captured;
        return captured;
    }

private:
    static void sink(const wchar_t* message) { text() += message; }
    ZEM::DumpSink m_previous;
};

// An empty configuration in memory, a fresh message store and German as the language.
inline void resetConfiguration() {
    const CZemDataItem empty(CZemDataItem::typeDir);
    ZEM::cfgSet(&empty);
    ZEM::cfgLibraryDirSet(nullptr);
    ZEM::msgReload();
    ZEM::msgLangSet(L"DEU");
}

}  // namespace datatest
