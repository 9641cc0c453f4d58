#include "ZemConfig.h"

#include "ZemDataAccess.h"
#include "ZemDataDir.h"
#include "ZemFileSystem.h"
#include "ZemTextUtil.h"
#include "ZemUtf8.h"

#include <cstdlib>
#include <cstring>
#include <cwchar>
#include <memory>

namespace {

std::unique_ptr<CZemDtaFilePointer>& configSlot() {
    static std::unique_ptr<CZemDtaFilePointer> config;
    return config;
}

CZemString& libraryDir() {
    static CZemString folder;
    return folder;
}

// The file named by ZEM_CONFIG, else zem.cfg beside the library; empty if
// neither is there.
CZemString configFileName() {
    if (const char* named = std::getenv("ZEM_CONFIG")) {
        if (*named) return CZemString(ZEM::utf8Decode(named, std::strlen(named)).c_str());
    }
    if (libraryDir().isEmpty()) return CZemString();
    const CZemString beside = ZEM::fsJoin(libraryDir(), L"zem.cfg");
    return ZEM::fsIsFile(beside) ? beside : CZemString();
}

std::unique_ptr<CZemDtaFilePointer> loadConfig() {
    std::unique_ptr<CZemDtaFilePointer> config(new CZemDtaFilePointer());
    const CZemString name = configFileName();
    if (!name.isEmpty() && !config->open(name, zemDtaRead | zemDtaWrite)) {
        ZEM::dump(L"%s: the configuration does not load; it starts empty\n", static_cast<const wchar_t*>(name));
    }
    return config;
}

int hexDigit(wchar_t c) {
    if (c >= L'0' && c <= L'9') return c - L'0';
    if (c >= L'a' && c <= L'f') return c - L'a' + 10;
    if (c >= L'A' && c <= L'F') return c - L'A' + 10;
    return -1;
}

// "#RRGGBB" as 0xRRGGBB.
bool trueColorOfHex(const wchar_t* text, unsigned long& rgb) {
    if (text[0] != L'#' || std::wcslen(text) != 7) return false;
    unsigned long value = 0;
    for (int k = 1; k <= 6; ++k) {
        const int d = hexDigit(text[k]);
        if (d < 0) return false;
        value = value * 16 + static_cast<unsigned long>(d);
    }
    rgb = value;
    return true;
}

// "R,G,B" with each part a whole number from 0 to 255, blanks allowed
// around the parts, as 0xRRGGBB.
bool trueColorOfText(const wchar_t* text, unsigned long& rgb) {
    if (trueColorOfHex(text, rgb)) return true;
    CZemArrayTempl<CZemString> parts;
    if (!ZEM::strTok(text, L",", parts, true) || parts.len() != 3) return false;
    unsigned long value = 0;
    for (int k = 0; k < 3; ++k) {
        const wchar_t* p = parts[k];
        while (*p == L' ') ++p;
        int channel = 0;
        int digits = 0;
        for (; *p >= L'0' && *p <= L'9' && digits < 4; ++p, ++digits) channel = channel * 10 + (*p - L'0');
        while (*p == L' ') ++p;
        if (digits == 0 || *p != 0 || channel > 255) return false;
        value = (value << 8) | static_cast<unsigned long>(channel);
    }
    rgb = value;
    return true;
}

bool colorOfDirectory(CZemColor& out, const CZemDataItem& dir) {
    CZemColor color = out;
    bool found = false;
    int index = 0;
    if (ZEM::itemGet(&dir, L"COLOR", index)) {
        color.setColorIndex(index);
        found = true;
    }
    unsigned long rgb = 0;
    CZemString text;
    bool haveRgb = ZEM::itemGet(&dir, L"RGB", rgb);
    if (!haveRgb && ZEM::itemGet(&dir, L"RGB", text)) {
        rgb = static_cast<unsigned long>(ZEM::atoi(text));
        haveRgb = true;
    }
    if (haveRgb) {
        color.setColor(rgb & 0xFFFFFF);
        found = true;
    }
    CZemString book;
    CZemString name;
    if (ZEM::itemGet(&dir, L"TBL", book)) {
        if (!ZEM::itemGet(&dir, L"NAME", name)) name = book;
        color.setNames(book, name);
        found = true;
    }
    if (found) out = color;
    return found;
}

}  // namespace

namespace ZEM {

CZemDtaFilePointer* cfgData() {
    std::unique_ptr<CZemDtaFilePointer>& config = configSlot();
    if (!config) config = loadConfig();
    return config.get();
}

CZemDataItem* cfg_get(const wchar_t* path) {
    const CZemDataKey key(path);
    return cfgData()->get(&key);
}

CZemDataItem* cfg_get(const CZemDataKey* key) { return cfgData()->get(key); }

CZemDataItem* cfg_dir_make(const wchar_t* path) {
    CZemDtaFilePointer* config = cfgData();
    if (!config->get(nullptr)) {
        const CZemDataItem empty(CZemDataItem::typeDir);
        config->set(&empty, nullptr);
    }
    CZemDataItem* root = config->get(nullptr);
    const CZemDataKey key(path);
    if (key.isEmpty()) {
        root->mkDir();
        return root;
    }
    CZemDataItem* node = root->get(&key);
    if (!node) {
        root->mkDir()->insert(&key, new CZemDataItem(CZemDataItem::typeDir), 0);
        node = root->get(&key);
    }
    if (node) node->mkDir();
    return node;
}

bool color_from_cfg(CZemColor& out, CZemDataItem* item) {
    if (!item) return false;
    if (item->isDir()) return colorOfDirectory(out, *item);
    int index = 0;
    if (item->get(index, nullptr)) {
        out.setColorIndex(index);
        return true;
    }
    CZemString text;
    unsigned long rgb = 0;
    if (!item->get(text, nullptr) || !trueColorOfText(text, rgb)) return false;
    out.setColor(rgb);
    return true;
}

bool cfgLoad(const wchar_t* path) {
    std::unique_ptr<CZemDtaFilePointer> config(new CZemDtaFilePointer());
    if (!fsIsFile(path) || !config->open(path, zemDtaRead | zemDtaWrite)) return false;
    configSlot().swap(config);
    return true;
}

void cfgSet(const CZemDataItem* root) {
    std::unique_ptr<CZemDtaFilePointer> config(new CZemDtaFilePointer());
    config->set(root, nullptr);
    configSlot().swap(config);
}

void cfgReset() { configSlot().reset(); }

void cfgLibraryDirSet(const wchar_t* folder) { libraryDir() = folder; }

const CZemString& cfgLibraryDir() { return libraryDir(); }

}  // namespace ZEM
