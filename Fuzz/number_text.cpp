// Number text as a user may type it: bytes become wide text, zemAtoF reads it,
// and whatever it reads is written in every format and must read back within
// the last step of its format and precision.
#include "ZemNumberText.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

namespace {

// Each byte is one character, except that 0xFF takes the next two bytes as one
// 16-bit character, so that non-ASCII text is reached as well.
std::wstring wideText(const std::uint8_t* data, std::size_t size) {
    std::wstring text;
    for (std::size_t k = 0; k < size; ++k) {
        if (data[k] == 0xFF && k + 2 < size) {
            text += static_cast<wchar_t>(data[k + 1] | (data[k + 2] << 8));
            k += 2;
        } else {
            text += static_cast<wchar_t>(data[k]);
        }
    }
    return text;
}

double lastStep(double x, int format, int precision) {
    if (format == Zem::formatScientific) return std::pow(10.0, -precision) * std::fabs(x);
    if (format >= Zem::formatArchitectural) return std::ldexp(1.0, -precision);
    return std::pow(10.0, -precision);
}

void writeAndReadBack(double x, int precision) {
    for (int format = Zem::formatScientific; format <= Zem::formatFractional; ++format) {
        for (const bool option : {false, true}) {
            wchar_t out[60];
            if (!zemRtoS(out, x, static_cast<Zem::lFormat>(format), precision, option)) continue;
            const double back = zemAtoF(out);
            const int used = format >= Zem::formatArchitectural ? (precision > 8 ? 8 : precision) : precision;
            if (!(std::fabs(back - x) <= 0.5 * lastStep(x, format, used) + 1e-12 * std::fabs(x))) std::abort();
        }
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::wstring text = wideText(data, size);
    const double x = zemAtoF(text.c_str());
    if (std::isnan(x)) return 0;
    const int precision = size > 0 ? data[0] % 17 : 4;
    writeAndReadBack(x, precision);
    return 0;
}
