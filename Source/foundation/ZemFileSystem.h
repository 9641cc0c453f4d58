#pragma once

#include "ZemString.h"

#include <filesystem>
#include <string>

// File names as the library's wide texts, and whole-file reads, without
// exceptions: wide names are UTF-8 on systems whose file names are bytes.
namespace ZEM {

std::filesystem::path fsPath(const wchar_t* name);
CZemString fsText(const std::filesystem::path& path);

// True if name is an existing regular file.
bool fsIsFile(const wchar_t* name);

// The whole content of a file into bytes. False, with a ZEM::dump message,
// if it cannot be opened or read or is larger than maxBytes.
bool fsReadAll(const wchar_t* name, std::string& bytes, std::size_t maxBytes);

// Joins a folder and a file name with the folder's own separator.
CZemString fsJoin(const wchar_t* folder, const wchar_t* name);

}  // namespace ZEM
