#include "ZemDataFileWriter.h"

#include "ZemDataDir.h"
#include "ZemDataItem.h"
#include "ZemResbuf.h"
#include "ZemTextUtil.h"
#include "ZemUtf8.h"

#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstring>

namespace {

// The reader's limit on nested directories.
constexpr int kMaxDepth = 200;

bool isBareKey(const wchar_t* text) {
    const wchar_t first = text[0];
    if (first == 0 || (first >= L'0' && first <= L'9') || first == L'-' || first == L'+' || first == L'.') return false;
    for (const wchar_t* p = text; *p; ++p) {
        const wchar_t c = *p;
        const bool ok = (c >= L'A' && c <= L'Z') || (c >= L'a' && c <= L'z') || (c >= L'0' && c <= L'9') ||
                        std::wcschr(L"_*$.-@!%&+?~^:", c) != nullptr;
        if (!ok) return false;
    }
    return true;
}

void appendHex(std::string& out, char escape, unsigned long code, int digits) {
    char buffer[16];
    std::snprintf(buffer, sizeof buffer, "\\%c%0*lX", escape, digits, code);
    out += buffer;
}

}  // namespace

bool CZemDataFileWriter::format(const CZemDataItem* root, std::string& out) {
    m_out = "ZEMDATA 1\n";
    if (root && root->isDir()) {
        m_out += "{\n";
        if (!writeEntries(*root, 1)) return false;
        m_out += "}\n";
    } else if (root) {
        m_out += "=";
        if (!writeValue(root->getResbuf())) return false;
        m_out += ";\n";
    }
    out.swap(m_out);
    m_out.clear();
    return true;
}

bool CZemDataFileWriter::writeEntries(const CZemDataItem& dir, int depth) {
    if (depth > kMaxDepth) {
        ZEM::dump(L"data set: directories nest deeper than %d levels; not written\n", kMaxDepth);
        return false;
    }
    const CZemDataDir* table = dir.getDir();
    for (int k = 0; k < table->len(); ++k) {
        const CZemDataItem* child = table->at(k);
        writeIndent(depth);
        writeKey(child->key());
        if (child->isDir()) {
            m_out += " {\n";
            if (!writeEntries(*child, depth + 1)) return false;
            writeIndent(depth);
            m_out += "}\n";
        } else {
            m_out += " =";
            if (!writeValue(child->getResbuf())) return false;
            m_out += ";\n";
        }
    }
    return true;
}

void CZemDataFileWriter::writeIndent(int depth) { m_out.append(static_cast<std::size_t>(depth) * 2, ' '); }

void CZemDataFileWriter::writeKey(const CZemDataKey& key) {
    const short code = key.type();
    if (code == ZEM::RTSHORT || code == ZEM::RTLONG) {
        m_out += std::to_string(key.levelNumber(0));
    } else if (code == ZEM::RTDXF0) {
        m_out += "N";
        writeString(key.levelText(0));
    } else if (isBareKey(key.levelText(0))) {
        m_out += ZEM::utf8Encode(key.levelText(0));
    } else {
        writeString(key.levelText(0));
    }
}

bool CZemDataFileWriter::writeValue(const resbuf* chain) {
    for (const resbuf* node = chain; node; node = node->rbnext) {
        m_out += " ";
        if (!writeAtom(node)) return false;
    }
    return true;
}

bool CZemDataFileWriter::writeAtom(const resbuf* node) {
    const zem_rb_value& v = node->resval;
    switch (node->restype) {
    case ZEM::RTREAL:
        writeReal(v.rreal);
        return true;
    case ZEM::RTANG:
        m_out += "A(";
        writeReal(v.rreal);
        m_out += ")";
        return true;
    case ZEM::RTPOINT:
    case ZEM::RT3DPOINT:
        m_out += node->restype == ZEM::RTPOINT ? "P2(" : "P(";
        for (int k = 0; k < (node->restype == ZEM::RTPOINT ? 2 : 3); ++k) {
            if (k > 0) m_out += " ";
            writeReal(v.rpoint[k]);
        }
        m_out += ")";
        return true;
    case ZEM::RTSHORT:
        m_out += std::to_string(v.rint);
        return true;
    case ZEM::RTLONG:
        m_out += "L(" + std::to_string(v.rlong) + ")";
        return true;
    case ZEM::RTSTR:
    case ZEM::RTDXF0:
        if (node->restype == ZEM::RTDXF0) m_out += "N";
        writeString(v.rstring ? v.rstring : L"");
        return true;
    case ZEM::RTLB:
        m_out += "(";
        return true;
    case ZEM::RTLE:
        m_out += ")";
        return true;
    case ZEM::RTDOTE:
        m_out += ".";
        return true;
    case ZEM::RTNIL:
        m_out += "nil";
        return true;
    case ZEM::RTT:
        m_out += "T";
        return true;
    default:
        ZEM::dump(L"data set: a value holds a node of code %d, which data set files cannot hold; not written\n",
                  static_cast<int>(node->restype));
        return false;
    }
}

// The shortest text that reads back as the same double, always with a point
// or an exponent so that it never reads as an integer.
void CZemDataFileWriter::writeReal(double value) {
    if (std::isnan(value)) {
        m_out += "nan";
        return;
    }
    char buffer[64];
    const auto result = std::to_chars(buffer, buffer + sizeof buffer, value);
    std::string text(buffer, result.ptr);
    if (text.find_first_of(".en") == std::string::npos) text += ".0";
    m_out += text;
}

void CZemDataFileWriter::writeString(const wchar_t* text) {
    const std::wstring wide(text);
    m_out += '"';
    for (std::size_t pos = 0; pos < wide.size();) {
        const char32_t c = ZEM::wideNext(wide, pos);
        if (c == U'"' || c == U'\\') {
            m_out += '\\';
            m_out += static_cast<char>(c);
        } else if (c == U'\n' || c == U'\r' || c == U'\t') {
            m_out += c == U'\n' ? "\\n" : (c == U'\r' ? "\\r" : "\\t");
        } else if (c < 0x20 || (c >= 0x7F && c < 0xA0) || (c >= 0xD800 && c < 0xE000)) {
            appendHex(m_out, 'u', c, 4);
        } else if (c > 0x7FFFFFFF) {
            appendHex(m_out, 'u', 0xFFFD, 4);
        } else if (c > 0x10FFFF) {
            appendHex(m_out, 'U', c, 8);
        } else {
            ZEM::utf8Append(m_out, c);
        }
    }
    m_out += '"';
}
