#pragma once

#include "ZemObj.h"

#include <string>

class CZemDataItem;
class CZemDataKey;
struct resbuf;

// Writes a data set as the text of a data set file (ZemDataFile.h tells the
// format), in a form that the reader gives back equal.
class CZemDataFileWriter : public CZemObj {
public:
    // The text for this root (null: a data set without a root). False, with a
    // ZEM::dump message, for a value node of a code the format cannot hold or
    // directories nested deeper than a file may be.
    bool format(const CZemDataItem* root, std::string& out);

private:
    bool writeEntries(const CZemDataItem& dir, int depth);
    bool writeValue(const resbuf* chain);
    bool writeAtom(const resbuf* node);
    void writeKey(const CZemDataKey& key);
    void writeString(const wchar_t* text);
    void writeReal(double value);
    void writeIndent(int depth);

    std::string m_out;
};
