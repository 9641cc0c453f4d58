#pragma once

#include "ZemString.h"

// The message store: texts by key and language, read at first need from
// message files on the support path. The texts of prefix P (the library's is
// "ZEM_") in language L (a code such as "DEU", case ignored) stand in the
// files named P + L + ".msg" (as "ZEM_DEU.msg") in the support folders; an
// earlier folder's text of a key wins, and within a file the first one.
//
// A message file is UTF-8 text (bytes that are not UTF-8 read as Latin-1),
// one message per line:   KEY = text
// Blanks around the key and the text are dropped; lines that are empty or
// begin with '#' or ';' are comments. In the text, \n \t \r are a line feed,
// tab and carriage return, \s a blank, \\ a backslash, \uXXXX a character by
// its hex code; any other backslash stands for itself. A line without '='
// or without a key is passed over with a ZEM::dump message.
namespace ZEM {

// Sets the language of messages and returns the current one; null or "" only
// asks. The language at start is the configuration's LANGUAGE, else "DEU".
const wchar_t* msgLangSet(const wchar_t* language);

// The text of key in a language (null: the current one); false, out
// untouched, if the store has none.
bool msgFind(const wchar_t* prefix, const wchar_t* key, const wchar_t* language, CZemString& out);

// Sets a text in code; it stands before the texts of files.
void msgSet(const wchar_t* prefix, const wchar_t* key, const wchar_t* language, const wchar_t* text);

// Forgets all texts, also those set in code, and the language set; files
// and the start language are read again at next need.
void msgReload();

}  // namespace ZEM

// The message of key in a language (null: the current one); text (null: "")
// if the store has none.
CZemString zem_msg_get(const wchar_t* prefix, const wchar_t* key, const wchar_t* text, const wchar_t* language);
