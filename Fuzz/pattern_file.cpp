// Pattern files as they come from disk: any bytes parse without a crash, and
// what is kept is sound: every pattern has lines of at least five finite
// numbers, and is found again by its name.
#include "ZemPatternFile.h"
#include "ZemTextUtil.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace {

void quiet(const wchar_t*) {}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    ZEM::setDumpSink(&quiet);
    CZemPatternFile patterns;
    const int count = patterns.parse(reinterpret_cast<const char*>(data), size, L"fuzz.pat");
    if (count != patterns.len()) std::abort();
    for (int i = 0; i < count; ++i) {
        if (patterns.lines(i).isEmpty() || patterns.find(patterns.name(i)) > i) std::abort();
        for (int k = 0; k < patterns.lines(i).len(); ++k) {
            const CZemArrayTempl<double>& line = patterns.lines(i)[k];
            if (line.len() < 5) std::abort();
            for (int j = 0; j < line.len(); ++j)
                if (!std::isfinite(line[j])) std::abort();
        }
    }
    return 0;
}
