#pragma once

#include "ZemSlideSink.h"

#include <array>
#include <cstdint>
#include <cstring>
#include <string>
#include <utility>
#include <vector>

namespace slidetest {

// Slide bytes by hand: a header of either level, then records with words in
// the chosen byte order.
class SlideBuilder {
public:
    explicit SlideBuilder(bool highFirst = false) : m_highFirst(highFirst) {}

    SlideBuilder& header(int level, int width, int height)
    {
        const std::string id = std::string("AutoCAD Slide\r\n\x1a", 16) + '\0' + "\x56" + char(level);
        m_bytes.assign(id.begin(), id.end());
        word(width).word(height);
        if (level == 1)
            m_bytes.insert(m_bytes.end(), 11, 0);  // aspect as a double, fill flag, filler
        else
            m_bytes.insert(m_bytes.end(), {0x80, 0x96, 0x98, 0x00, 2, 0});  // aspect 1.0, fill flag
        return level == 1 ? *this : word(0x1234);
    }
    SlideBuilder& word(int value)
    {
        const auto low = static_cast<unsigned char>(value & 0xFF);
        const auto high = static_cast<unsigned char>((value >> 8) & 0xFF);
        m_bytes.insert(m_bytes.end(), {m_highFirst ? high : low, m_highFirst ? low : high});
        return *this;
    }
    SlideBuilder& byte(int value) { return m_bytes.push_back(static_cast<unsigned char>(value & 0xFF)), *this; }
    SlideBuilder& vector(int x0, int y0, int x1, int y1) { return word(x0).word(y0).word(x1).word(y1); }
    SlideBuilder& offsetVector(int dx0, int dy0, int dx1, int dy1)
    {
        return word(0xFB00 | (dx0 & 0xFF)).byte(dy0).byte(dx1).byte(dy1);
    }
    SlideBuilder& commonEndpoint(int dx, int dy) { return word(0xFE00 | (dx & 0xFF)).byte(dy); }
    SlideBuilder& color(int index) { return word(0xFF00 | index); }
    SlideBuilder& fillRecord(int x, int y) { return word(0xFD00).word(x).word(y); }
    SlideBuilder& end() { return word(0xFC00); }

    const std::vector<unsigned char>& bytes() const { return m_bytes; }

private:
    bool m_highFirst;
    std::vector<unsigned char> m_bytes;
};

// One slide of a library: its name and bytes.
struct Slide {
    std::string name;
    std::vector<unsigned char> bytes;
};

// A library of the given slides; terminated says whether the directory ends
// with an empty entry; shift moves every stored offset.
inline std::string library(const std::vector<Slide>& slides, bool terminated = true, long shift = 0)
{
    std::string out = "AutoCAD Slide Library 1.0\r\n\x1a";
    out.resize(32, '\0');
    std::uint32_t offset = static_cast<std::uint32_t>(32 + 36 * (slides.size() + (terminated ? 1 : 0)));
    for (const Slide& slide : slides) {
        std::string entry(36, '\0');
        std::memcpy(&entry[0], slide.name.data(), slide.name.size());
        const std::uint32_t stored = static_cast<std::uint32_t>(offset + shift);
        for (int i = 0; i < 4; ++i)
            entry[32 + i] = static_cast<char>(stored >> (8 * i) & 0xFF);
        out += entry;
        offset += static_cast<std::uint32_t>(slide.bytes.size());
    }
    if (terminated)
        out += std::string(36, '\0');
    for (const Slide& slide : slides)
        out.append(slide.bytes.begin(), slide.bytes.end());
    return out;
}

// Keeps everything a decoding reports, in order.
class RecordingSink : public CZemSlideSink {
public:
    using Line = std::array<int, 4>;
    using Polygon = std::vector<std::pair<int, int>>;

    void slideSize(int w, int h) override { width = w, height = h; }
    void newColor(int color) override { colors.push_back(color); }
    void line(int x0, int y0, int x1, int y1) override { lines.push_back({x0, y0, x1, y1}); }
    void polygon(std::vector<Point>& points) override
    {
        polygons.emplace_back();
        for (const Point& p : points)
            polygons.back().emplace_back(p.x, p.y);
    }

    int width = -1;
    int height = -1;
    std::vector<int> colors;
    std::vector<Line> lines;
    std::vector<Polygon> polygons;
};

}  // namespace slidetest
