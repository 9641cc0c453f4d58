#pragma once

#include "ZemArrayTempl.h"
#include "ZemString.h"

#include <cstdarg>
#include <cstddef>
#include <string>

namespace ZEM {

// Leading white space, a sign and decimal digits; 0 for a null or unreadable
// text. Stops at the first other character; saturates at the int range.
int atoi(const wchar_t* text);

// Leading white space, then the longest plain number (see scanReal); 0.0 for a
// null or unreadable text. "45.5°" gives 45.5; "1e999" gives infinity.
double atof(const wchar_t* text);

// Reads the plain number at the very start of text: an optional sign, digits
// with at most one decimal separator ('.' or ','), and an optional exponent
// (E or e, optional sign, digits). Returns how many characters it read (0 if
// there is no number there, and value is then untouched).
std::size_t scanReal(const wchar_t* text, double& value);

// Splits text at every character of separators into out (emptied first).
// keepEmpty false: runs of separators count as one and no token is empty, so
// "a//b/" split at "/" gives "a", "b". keepEmpty true: each separator ends a
// token, and the same text gives "a", "", "b", "". Null separators keep the
// text whole. False, with out empty, for a null text or when no token results.
bool strTok(const wchar_t* text, const wchar_t* separators, CZemArrayTempl<CZemString>& out, bool keepEmpty);

// Formats like vswprintf, where %s and %c (without a length modifier) take
// wide strings and characters on every platform; the text is never cut.
std::wstring formatText(const wchar_t* fmt, va_list args);

// Receives each finished text of dump.
typedef void (*DumpSink)(const wchar_t* text);

// Diagnostic output: formats like swprintf, where %s and %c (without a length
// modifier) take wide strings and characters on every platform, and hands the
// text to the sink, by default UTF-8 to stderr.
void dump(const wchar_t* fmt, ...);

// Replaces the sink of dump and returns the one it replaced; null restores
// the default.
DumpSink setDumpSink(DumpSink sink);

}  // namespace ZEM
