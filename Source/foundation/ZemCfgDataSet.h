#pragma once

#include "ZemDtaFilePointer.h"

#include <memory>

namespace ZEM {

// The data set that a configuration key names: a directory there is the
// data set itself (a copy in memory), a string the name of a data set file
// found on the support path; without the key, defaultFile. Null if there is
// none or the file does not load.
std::unique_ptr<CZemDtaFilePointer> cfgDataSet(const wchar_t* key, const wchar_t* defaultFile);

}  // namespace ZEM
