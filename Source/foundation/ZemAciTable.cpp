#include "ZemAciTable.h"

namespace {

struct Rgbv {
    double r, g, b, v;
};

// Indices 0 to 9: black, the seven named colours, two greys.
const Rgbv kFixed[10] = {
    {0, 0, 0, 0}, {1, 0, 0, 1}, {1, 1, 0, 1}, {0, 1, 0, 1}, {0, 1, 1, 1},
    {0, 0, 1, 1}, {1, 0, 1, 1}, {1, 1, 1, 1}, {1, 1, 1, 0.5}, {1, 1, 1, 0.75},
};

// Indices 10 to 249: 24 hues in steps of 15 degrees, each in five
// brightnesses, at full saturation (even) and half saturation (odd).
Rgbv hueColor(int index) {
    static const double kValue[5] = {1.0, 0.65, 0.5, 0.3, 0.2};
    const int hue = (index - 10) / 10;
    const double t = 0.25 * hue;
    const int sector = static_cast<int>(t);
    const double f = t - sector;
    const int s = index % 10;
    const double a = s % 2 == 0 ? 1.0 : 0.5;
    const double v = kValue[s / 2];
    switch (sector) {
        case 0: return {1, 1 - (1 - f) * a, 1 - a, v};
        case 1: return {1 - a * f, 1, 1 - a, v};
        case 2: return {1 - a, 1, 1 - (1 - f) * a, v};
        case 3: return {1 - a, 1 - a * f, 1, v};
        case 4: return {1 - (1 - f) * a, 1 - a, 1, v};
        default: return {1, 1 - a, 1 - a * f, v};
    }
}

Rgbv channels(int index) {
    if (index < 10) return kFixed[index];
    if (index < 250) return hueColor(index);
    return {1, 1, 1, (index - 250) * 0.134 + 0.333333};
}

unsigned long toByte(double channel, double v) { return static_cast<unsigned long>(channel * v * 255.0); }

}  // namespace

unsigned long zem_aci_rgb(int index) {
    if (index < 0 || index > 255) return 0;
    const Rgbv c = channels(index);
    return toByte(c.r, c.v) + 256 * toByte(c.g, c.v) + 65536 * toByte(c.b, c.v);
}
