#pragma once

#include "ZemObj.h"

#include <memory>
#include <string>

class CZemDataItem;
class CZemDataKey;
struct resbuf;

// Reads the text of a data set file (the format is told in ZemDataFile.h).
// Refuses malformed text as a whole, with a ZEM::dump message that names the
// source and the line.
class CZemDataFileReader : public CZemObj {
public:
    explicit CZemDataFileReader(const wchar_t* source);

    // True with root set to the data set's root (null for a file without
    // one); false leaves root as it was.
    bool parse(const std::string& bytes, std::unique_ptr<CZemDataItem>& root);

private:
    enum Kind { kEnd, kWord, kString, kName, kFunction, kOpen, kClose, kBraceOpen, kBraceClose, kEqual, kSemicolon };
    struct Token {
        Kind kind = kEnd;
        std::wstring text;
        int line = 0;
    };

    bool lex(Token& token);
    bool lexString(Token& token);
    void skipBlanks();
    bool fail(int line, const wchar_t* message, const std::wstring& detail = std::wstring());

    bool parseHeader();
    bool parseEntries(CZemDataItem& dir, int depth);
    bool parseKey(const Token& token, CZemDataKey& key);
    bool parseValue(resbuf*& chain);
    bool parseAtom(const Token& token, resbuf*& node);
    bool parseFunction(const Token& token, resbuf*& node);
    bool parseNumber(const std::wstring& word, int line, double& value);

    std::wstring m_source;
    std::wstring m_text;
    std::size_t m_pos = 0;
    int m_line = 1;
};
