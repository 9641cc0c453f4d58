// zemfontgen: builds the outline table of the stroke font from the stroke
// skeletons of its characters.
//
//   zemfontgen --out DIR        writes DIR/ZemFontData.h and DIR/ZemFontData.cpp
//   zemfontgen --compare DIR    fails if those files differ from a fresh build
//   zemfontgen --png FILE [--scale PIXELS] [--codes C,C,...] [--draft]
//                               draws the glyphs filled into a PNG picture;
//                               a draft goes on past faulty glyphs
//
// Every glyph is checked against the region and hole structure of the font;
// the tool fails loudly on the first glyph that is wrong.
#include "ZemFontCheck.h"
#include "ZemFontPicture.h"
#include "ZemFontSketches.h"
#include "ZemFontWriter.h"
#include "ZemGlyphStroker.h"

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

namespace {

struct Options {
    std::string outDir;
    std::string compareDir;
    std::string png;
    int scale = 100;
    std::vector<int> codes;
    bool draft = false;
};

bool parse(int argc, char** argv, Options& o) {
    for (int k = 1; k < argc; ++k) {
        const std::string arg = argv[k];
        if (arg == "--draft") {
            o.draft = true;
            continue;
        }
        if (k + 1 >= argc) return false;
        const std::string value = argv[++k];
        if (arg == "--out") o.outDir = value;
        else if (arg == "--compare") o.compareDir = value;
        else if (arg == "--png") o.png = value;
        else if (arg == "--scale") o.scale = std::atoi(value.c_str());
        else if (arg == "--codes") {
            std::stringstream list(value);
            std::string item;
            while (std::getline(list, item, ',')) o.codes.push_back(std::atoi(item.c_str()));
        } else return false;
    }
    return o.scale >= 10 && o.scale <= 1000 && !(o.outDir.empty() && o.compareDir.empty() && o.png.empty());
}

// With draft set, faulty glyphs are reported and kept, for a picture of them.
bool buildFont(bool draft, std::vector<ZemGlyphOutline>& glyphs, std::vector<int>& stepEnds) {
    const CZemGlyphStroker stroker;
    bool ok = true;
    for (const std::vector<int>& step : zem_font_fill_steps()) {
        for (int code : step) {
            CZemGlyphSketch sketch(code);
            ZemGlyphOutline glyph;
            std::string error;
            if (!zem_font_draw(code, sketch)) error = "no sketch";
            else if (stroker.outline(sketch, glyph, error)) zem_font_check_glyph(glyph, error);
            if (!error.empty()) {
                std::fprintf(stderr, "zemfontgen: glyph %d: %s\n", code, error.c_str());
                ok = false;
                if (!draft) return false;
            }
            glyphs.push_back(glyph);
        }
        stepEnds.push_back(static_cast<int>(glyphs.size()));
    }
    return ok;
}

void report(const std::vector<ZemGlyphOutline>& glyphs) {
    size_t regions = 0, contours = 0, segments = 0;
    for (const ZemGlyphOutline& g : glyphs) {
        regions += g.regions.size();
        for (const ZemRegion& r : g.regions) {
            contours += r.size();
            for (const ClipperLib::Path& c : r) segments += c.size();
        }
    }
    std::printf("zemfontgen: %zu glyphs, %zu regions, %zu contours, %zu segments\n", glyphs.size(), regions,
                contours, segments);
}

std::string readFile(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    std::stringstream s;
    s << in.rdbuf();
    return s.str();
}

bool writeFile(const std::string& path, const std::string& text) {
    std::ofstream out(path, std::ios::binary);
    out << text;
    return static_cast<bool>(out);
}

// The picture holds the requested glyphs, or all of them.
bool drawPicture(const Options& o, const std::vector<ZemGlyphOutline>& glyphs) {
    std::vector<ZemGlyphOutline> chosen;
    for (const ZemGlyphOutline& g : glyphs) {
        bool wanted = o.codes.empty();
        for (int c : o.codes) wanted = wanted || c == g.code;
        if (wanted) chosen.push_back(g);
    }
    const int columns = chosen.size() < 12 ? static_cast<int>(chosen.size()) : 12;
    if (chosen.empty() || !CZemFontPicture(chosen, o.scale, columns).writePng(o.png)) {
        std::fprintf(stderr, "zemfontgen: cannot draw %s\n", o.png.c_str());
        return false;
    }
    return true;
}

}  // namespace

int main(int argc, char** argv) {
    Options o;
    if (!parse(argc, argv, o)) {
        std::fprintf(stderr, "usage: zemfontgen --out DIR | --compare DIR | "
                             "--png FILE [--scale N] [--codes C,...] [--draft]\n");
        return 2;
    }
    std::vector<ZemGlyphOutline> glyphs;
    std::vector<int> stepEnds;
    const bool built = buildFont(o.draft, glyphs, stepEnds);
    report(glyphs);
    if (!built && !o.draft) return 1;
    const CZemFontWriter writer(glyphs, stepEnds);
    if (!o.outDir.empty()) {
        if (!writeFile(o.outDir + "/ZemFontData.h", writer.header()) ||
            !writeFile(o.outDir + "/ZemFontData.cpp", writer.source())) {
            std::fprintf(stderr, "zemfontgen: cannot write into %s\n", o.outDir.c_str());
            return 1;
        }
    }
    if (!o.compareDir.empty()) {
        for (const auto& [name, text] : {std::pair<std::string, std::string>{"ZemFontData.h", writer.header()},
                                         {"ZemFontData.cpp", writer.source()}}) {
            if (readFile(o.compareDir + "/" + name) != text) {
                std::fprintf(stderr, "zemfontgen: %s/%s differs from the generated table; run zemfontgen --out\n",
                             o.compareDir.c_str(), name.c_str());
                return 1;
            }
        }
    }
    if (!o.png.empty() && !drawPicture(o, glyphs)) return 1;
    return 0;
}
