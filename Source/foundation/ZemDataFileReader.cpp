#include "ZemDataFileReader.h"

#include "ZemDataDir.h"
#include "ZemDataItem.h"
#include "ZemResbuf.h"
#include "ZemTextUtil.h"
#include "ZemUtf8.h"

#include <charconv>
#include <climits>
#include <cwchar>

namespace {

// Directories nest at most this deep; deeper files are refused.
constexpr int kMaxDepth = 200;

bool isBlank(wchar_t c) { return c == L' ' || c == L'\t' || c == L'\r' || c == L'\n' || c == L'\f' || c == L'\v'; }

bool endsWord(wchar_t c) { return c == 0 || isBlank(c) || std::wcschr(L"{}=;()\"#", c) != nullptr; }

int hexDigit(wchar_t c) {
    if (c >= L'0' && c <= L'9') return c - L'0';
    if (c >= L'a' && c <= L'f') return c - L'a' + 10;
    if (c >= L'A' && c <= L'F') return c - L'A' + 10;
    return -1;
}

// The ASCII form of a word; false if it holds anything else.
bool asciiOf(const std::wstring& word, std::string& out) {
    out.clear();
    for (wchar_t c : word) {
        if (c <= 0 || c > 0x7E) return false;
        out += static_cast<char>(c);
    }
    return true;
}

bool isIntegerWord(const std::string& word) {
    std::size_t k = word[0] == '-' || word[0] == '+' ? 1 : 0;
    if (k == word.size()) return false;
    for (; k < word.size(); ++k)
        if (word[k] < '0' || word[k] > '9') return false;
    return true;
}

bool isNameStart(wchar_t c) { return !(c >= L'0' && c <= L'9') && c != L'-' && c != L'+' && c != L'.'; }

bool isNameChar(wchar_t c) {
    return (c >= L'A' && c <= L'Z') || (c >= L'a' && c <= L'z') || (c >= L'0' && c <= L'9') ||
           (c != 0 && std::wcschr(L"_*$.-@!%&+?~^:", c) != nullptr);
}

// Numbers that fit the integer levels and values: 32 bits.
bool readInteger(const std::string& word, long long& value) {
    const char* first = word.data() + (word[0] == '+' ? 1 : 0);
    const auto result = std::from_chars(first, word.data() + word.size(), value);
    return result.ec == std::errc() && result.ptr == word.data() + word.size() && value >= INT_MIN &&
           value <= INT_MAX;
}

}  // namespace

CZemDataFileReader::CZemDataFileReader(const wchar_t* source) : m_source(source ? source : L"data") {}

bool CZemDataFileReader::fail(int line, const wchar_t* message, const std::wstring& detail) {
    if (detail.empty()) {
        ZEM::dump(L"%s:%d: %s\n", m_source.c_str(), line, message);
    } else {
        ZEM::dump(L"%s:%d: %s '%s'\n", m_source.c_str(), line, message, detail.c_str());
    }
    return false;
}

void CZemDataFileReader::skipBlanks() {
    while (m_pos < m_text.size()) {
        const wchar_t c = m_text[m_pos];
        if (c == L'#') {
            while (m_pos < m_text.size() && m_text[m_pos] != L'\n') ++m_pos;
        } else if (isBlank(c)) {
            if (c == L'\n') ++m_line;
            ++m_pos;
        } else {
            return;
        }
    }
}

bool CZemDataFileReader::lex(Token& token) {
    skipBlanks();
    token.text.clear();
    token.line = m_line;
    if (m_pos >= m_text.size()) {
        token.kind = kEnd;
        return true;
    }
    const wchar_t c = m_text[m_pos];
    const wchar_t* singles = L"{}=;()";
    const Kind kinds[] = {kBraceOpen, kBraceClose, kEqual, kSemicolon, kOpen, kClose};
    if (const wchar_t* at = c ? std::wcschr(singles, c) : nullptr) {
        token.kind = kinds[at - singles];
        ++m_pos;
        return true;
    }
    if (c == L'"') {
        token.kind = kString;
        return lexString(token);
    }
    while (!endsWord(m_pos < m_text.size() ? m_text[m_pos] : 0)) token.text += m_text[m_pos++];
    if (token.text.empty()) return fail(m_line, L"unexpected character");
    const wchar_t after = m_pos < m_text.size() ? m_text[m_pos] : 0;
    token.kind = kWord;
    if (token.text == L"N" && after == L'"') {
        token.kind = kName;
        return lexString(token);
    }
    if (after == L'(' && (token.text == L"P" || token.text == L"P2" || token.text == L"A" || token.text == L"L")) {
        token.kind = kFunction;
        ++m_pos;
    }
    return true;
}

// A quoted string at m_pos, with the escapes \\ \" \n \r \t \uXXXX \UXXXXXXXX.
bool CZemDataFileReader::lexString(Token& token) {
    token.text.clear();
    ++m_pos;
    while (m_pos < m_text.size()) {
        wchar_t c = m_text[m_pos++];
        if (c == L'"') return true;
        if (c == 0) return fail(m_line, L"a string holds the character 0");
        if (c == L'\n') ++m_line;
        if (c != L'\\') {
            token.text += c;
            continue;
        }
        c = m_pos < m_text.size() ? m_text[m_pos++] : 0;
        if (c == L'\\' || c == L'"') {
            token.text += c;
        } else if (c == L'n' || c == L'r' || c == L't') {
            token.text += c == L'n' ? L'\n' : (c == L'r' ? L'\r' : L'\t');
        } else if (c == L'u' || c == L'U') {
            const std::size_t digits = c == L'u' ? 4 : 8;
            unsigned long code = 0;
            for (std::size_t k = 0; k < digits; ++k) {
                const int d = m_pos < m_text.size() ? hexDigit(m_text[m_pos]) : -1;
                if (d < 0) return fail(m_line, L"bad \\u escape in a string");
                code = code * 16 + static_cast<unsigned long>(d);
                ++m_pos;
            }
            if (code == 0 || code > 0x7FFFFFFF) return fail(m_line, L"bad character code in a string");
            ZEM::wideAppend(token.text, static_cast<char32_t>(code));
        } else {
            return fail(m_line, L"unknown escape in a string");
        }
    }
    return fail(token.line, L"a string does not end");
}

bool CZemDataFileReader::parse(const std::string& bytes, std::unique_ptr<CZemDataItem>& root) {
    m_text = ZEM::utf8Decode(bytes.data(), bytes.size());
    m_pos = 0;
    m_line = 1;
    if (!parseHeader()) return false;
    std::unique_ptr<CZemDataItem> result;
    Token token;
    if (!lex(token)) return false;
    if (token.kind == kBraceOpen) {
        result.reset(new CZemDataItem(CZemDataItem::typeDir));
        if (!parseEntries(*result, 1)) return false;
    } else if (token.kind == kEqual) {
        resbuf* chain = nullptr;
        if (!parseValue(chain)) return false;
        result.reset(new CZemDataItem());
        result->setData(chain, false);
    } else if (token.kind != kEnd) {
        return fail(token.line, L"expected '{' or '=' for the root", token.text);
    }
    if (token.kind != kEnd && !lex(token)) return false;
    if (token.kind != kEnd) return fail(token.line, L"text behind the root", token.text);
    root.swap(result);
    return true;
}

bool CZemDataFileReader::parseHeader() {
    Token magic;
    Token version;
    if (!lex(magic)) return false;
    if (magic.kind != kWord || magic.text != L"ZEMDATA") return fail(magic.line, L"not a data set file: no ZEMDATA header");
    if (!lex(version)) return false;
    if (version.kind != kWord || version.text != L"1") return fail(version.line, L"unknown format version", version.text);
    return true;
}

bool CZemDataFileReader::parseEntries(CZemDataItem& dir, int depth) {
    if (depth > kMaxDepth) return fail(m_line, L"directories nest too deep");
    for (;;) {
        Token token;
        if (!lex(token)) return false;
        if (token.kind == kBraceClose) return true;
        if (token.kind == kEnd) return fail(token.line, L"a directory does not end: missing '}'");
        CZemDataKey key;
        if (!parseKey(token, key)) return false;
        if (dir.get(&key)) return fail(token.line, L"the key appears twice", token.text);
        Token how;
        if (!lex(how)) return false;
        std::unique_ptr<CZemDataItem> child;
        if (how.kind == kBraceOpen) {
            child.reset(new CZemDataItem(CZemDataItem::typeDir));
            if (!parseEntries(*child, depth + 1)) return false;
        } else if (how.kind == kEqual) {
            resbuf* chain = nullptr;
            if (!parseValue(chain)) return false;
            child.reset(new CZemDataItem());
            child->setData(chain, false);
        } else {
            return fail(how.line, L"expected '{' or '=' behind the key", token.text);
        }
        dir.getDir()->insert(&key, child.release(), 0);
    }
}

bool CZemDataFileReader::parseKey(const Token& token, CZemDataKey& key) {
    if (token.kind == kString || token.kind == kName) {
        key.appendString(token.text.c_str(), token.kind == kName ? ZEM::RTDXF0 : ZEM::RTSTR);
        return true;
    }
    if (token.kind != kWord) return fail(token.line, L"expected a key");
    std::string ascii;
    long long number = 0;
    if (asciiOf(token.text, ascii) && isIntegerWord(ascii)) {
        if (!readInteger(ascii, number)) return fail(token.line, L"the key number is out of range", token.text);
        key.appendNumber(static_cast<long>(number));
        return true;
    }
    bool name = isNameStart(token.text[0]);
    for (wchar_t c : token.text) name = name && isNameChar(c);
    if (!name) return fail(token.line, L"a key that is no name; quote it", token.text);
    key.appendString(token.text.c_str());
    return true;
}

// The atoms of a value up to its ';', as a chain.
bool CZemDataFileReader::parseValue(resbuf*& chain) {
    resbuf* head = nullptr;
    resbuf** tail = &head;
    for (;;) {
        Token token;
        resbuf* node = nullptr;
        if (!lex(token)) break;
        if (token.kind == kSemicolon) {
            chain = head;
            return true;
        }
        if (token.kind == kEnd) {
            fail(token.line, L"a value does not end: missing ';'");
            break;
        }
        if (!parseAtom(token, node)) break;
        *tail = node;
        tail = &node->rbnext;
    }
    zemRelRb(head);
    return false;
}

bool CZemDataFileReader::parseAtom(const Token& token, resbuf*& node) {
    switch (token.kind) {
    case kOpen:
        node = ZEM::rbNew(ZEM::RTLB);
        return true;
    case kClose:
        node = ZEM::rbNew(ZEM::RTLE);
        return true;
    case kString:
    case kName:
        node = ZEM::mkResbuf(token.text.c_str(), token.kind == kName ? ZEM::RTDXF0 : ZEM::RTSTR);
        return true;
    case kFunction:
        return parseFunction(token, node);
    case kWord:
        break;
    default:
        return fail(token.line, L"unexpected sign in a value");
    }
    if (token.text == L".") {
        node = ZEM::rbNew(ZEM::RTDOTE);
    } else if (token.text == L"nil" || token.text == L"T") {
        node = ZEM::rbNew(token.text == L"T" ? ZEM::RTT : ZEM::RTNIL);
    } else {
        std::string ascii;
        long long number = 0;
        double real = 0.0;
        if (asciiOf(token.text, ascii) && isIntegerWord(ascii)) {
            if (!readInteger(ascii, number) || number < -32768 || number > 32767)
                return fail(token.line, L"a short integer out of range; write L(...)", token.text);
            node = ZEM::mkResbuf(static_cast<int>(number), ZEM::RTSHORT);
        } else if (parseNumber(token.text, token.line, real)) {
            node = ZEM::mkResbuf(real, ZEM::RTREAL);
        } else {
            return false;
        }
    }
    return true;
}

// P(x y z), P2(x y), A(angle), L(integer).
bool CZemDataFileReader::parseFunction(const Token& token, resbuf*& node) {
    std::wstring words[3];
    std::size_t count = 0;
    for (;;) {
        Token arg;
        if (!lex(arg)) return false;
        if (arg.kind == kClose) break;
        if (arg.kind != kWord || count == 3) return fail(arg.line, L"bad argument", token.text);
        words[count++] = arg.text;
    }
    const std::size_t wanted = token.text == L"P" ? 3 : (token.text == L"P2" ? 2 : 1);
    if (count != wanted) return fail(token.line, L"wrong number of arguments to", token.text);
    if (token.text == L"L") {
        std::string ascii;
        long long number = 0;
        if (!asciiOf(words[0], ascii) || !isIntegerWord(ascii) || !readInteger(ascii, number))
            return fail(token.line, L"bad long integer", words[0]);
        node = ZEM::rbNew(ZEM::RTLONG);
        node->resval.rlong = static_cast<int>(number);
        return true;
    }
    double values[3] = {0.0, 0.0, 0.0};
    for (std::size_t k = 0; k < count; ++k)
        if (!parseNumber(words[k], token.line, values[k])) return false;
    if (token.text == L"A") {
        node = ZEM::mkResbuf(values[0], ZEM::RTANG);
        return true;
    }
    node = ZEM::rbNew(count == 3 ? ZEM::RT3DPOINT : ZEM::RTPOINT);
    for (std::size_t k = 0; k < 3; ++k) node->resval.rpoint[k] = values[k];
    return true;
}

// A real in the C locale's form, or inf, -inf, nan.
bool CZemDataFileReader::parseNumber(const std::wstring& word, int line, double& value) {
    std::string ascii;
    if (asciiOf(word, ascii) && !ascii.empty()) {
        const char* first = ascii.data() + (ascii[0] == '+' ? 1 : 0);
        const auto result = std::from_chars(first, ascii.data() + ascii.size(), value);
        if (result.ec == std::errc() && result.ptr == ascii.data() + ascii.size()) return true;
    }
    return fail(line, L"not a number", word);
}
