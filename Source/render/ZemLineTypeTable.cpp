#include "ZemLineTypeTable.h"

#include <initializer_list>

namespace {

CZemArrayTempl<double> pattern(std::initializer_list<double> entries) {
    CZemArrayTempl<double> out;
    for (double e : entries) out.append(e);
    return out;
}

bool storedAs(const CZemArrayTempl<double>& stored, std::initializer_list<double> entries) {
    if (stored.len() != static_cast<int>(entries.size())) return false;
    int k = 0;
    for (double e : entries) {
        if (stored[k++] != e) return false;
    }
    return true;
}

// The stored forms compare exactly; anything else is a pattern already.
CZemArrayTempl<double> expanded(const CZemArrayTempl<double>& stored) {
    if (storedAs(stored, {1.0}) || storedAs(stored, {1.0, 0.0, 0.0})) return {};
    if (storedAs(stored, {1.0, 1.0, 0.0})) return pattern({10.0, -4.0});
    if (storedAs(stored, {1.0, 1.0, 1.0})) return pattern({11.0, -5.0, 0.0, -5.0});
    if (stored.len() == 3 && stored[0] == 0.0 && stored[1] == 0.0 && stored[2] != 0.0) return pattern({0.0, -4.0});
    return stored;
}

}  // namespace

CZemArrayTempl<double> zem_gdx_linetype_draw(const CZemArrayTempl<double>& stored, double ltscale,
                                             double dotLength) {
    CZemArrayTempl<double> out = expanded(stored);
    for (int k = 0; k < out.len(); ++k) out[k] = out[k] == 0.0 ? dotLength : out[k] * ltscale;
    return out;
}
