#pragma once

#include "ZemArrayTempl.h"
#include "ZemString.h"

// Finding files on the support path of the configuration (key SUPPORT, see
// ZemConfig.h), followed by the library's folder.
namespace ZEM {

// The full name of a file: a name with a folder part as it stands if the
// file is there, else, like a plain name, in the first support folder that
// holds it. False, path untouched, if none does.
bool fileFind(const wchar_t* name, CZemString& path);
// The same for help files: the folders of key HELP first, then the support
// folders.
bool help_find(const wchar_t* name, CZemString& path);

// The support folders in search order.
void supportFolders(CZemArrayTempl<CZemString>& out);

}  // namespace ZEM
