#pragma once

#include "ZemString.h"

// A label: one text in several languages, held in one string. A label
// begins with a backslash and is a row of entries "\CODE=text": the code of a
// language (letters, digits, '_' and '-'), '=', then the text, in which every
// backslash is doubled. Any other character stands as it is, so texts keep
// line feeds, '=' and all else. A string that does not begin with a backslash
// is a plain text, the same in every language. An entry with a malformed
// code is ignored. Codes match ignoring the case of ASCII letters.
namespace ZEM {

// The text of a language (null: the message language) in label. A plain
// text is that text. With anyLanguage, a label without that language gives
// its first text. False, out untouched, if there is no text, or it is empty.
bool label_get(CZemString& out, const wchar_t* label, const wchar_t* language, bool anyLanguage);

// Puts the text of a language (null: the message language) into label,
// replacing its present text there; a null or empty text removes it. A
// plain text in label first becomes the text of the message language. A
// malformed language code leaves label unchanged.
const wchar_t* label_set(CZemString& label, const wchar_t* text, const wchar_t* language);
CZemString label_set(const wchar_t* label, const wchar_t* text, const wchar_t* language);

}  // namespace ZEM
