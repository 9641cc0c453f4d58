#include "ZemPngWriter.h"

#include <cstdio>

namespace {

// Bits go into the stream from the least significant end; Huffman codes are
// sent from their most significant bit.
class CBitSink {
public:
    explicit CBitSink(std::vector<std::uint8_t>& out) : m_out(out) {}
    void bits(std::uint32_t value, int count) {
        for (int k = 0; k < count; ++k) put((value >> k) & 1u);
    }
    void code(std::uint32_t value, int count) {
        for (int k = count - 1; k >= 0; --k) put((value >> k) & 1u);
    }
    void flush() {
        if (m_used) m_out.push_back(m_byte);
        m_used = 0;
        m_byte = 0;
    }

private:
    void put(std::uint32_t bit) {
        m_byte |= static_cast<std::uint8_t>(bit << m_used);
        if (++m_used == 8) flush();
    }
    std::vector<std::uint8_t>& m_out;
    std::uint8_t m_byte = 0;
    int m_used = 0;
};

void literal(CBitSink& sink, unsigned v) {
    if (v < 144) sink.code(0x30 + v, 8);
    else if (v < 256) sink.code(0x190 + v - 144, 9);
    else if (v < 280) sink.code(v - 256, 7);
    else sink.code(0xC0 + v - 280, 8);
}

void match(CBitSink& sink, unsigned length, unsigned distance) {
    static const unsigned lenBase[29] = {3,  4,  5,  6,  7,  8,  9,  10, 11,  13,  15,  17,  19,  23, 27,
                                         31, 35, 43, 51, 59, 67, 83, 99, 115, 131, 163, 195, 227, 258};
    static const unsigned lenExtra[29] = {0, 0, 0, 0, 0, 0, 0, 0, 1, 1, 1, 1, 2, 2, 2,
                                          2, 3, 3, 3, 3, 4, 4, 4, 4, 5, 5, 5, 5, 0};
    static const unsigned distBase[30] = {1,   2,   3,   4,   5,   7,    9,    13,   17,   25,
                                          33,  49,  65,  97,  129, 193,  257,  385,  513,  769,
                                          1025, 1537, 2049, 3073, 4097, 6145, 8193, 12289, 16385, 24577};
    int l = 28;
    while (lenBase[l] > length) --l;
    literal(sink, 257 + l);
    sink.bits(length - lenBase[l], static_cast<int>(lenExtra[l]));
    int d = 29;
    while (distBase[d] > distance) --d;
    sink.code(static_cast<std::uint32_t>(d), 5);
    sink.bits(distance - distBase[d], d < 4 ? 0 : d / 2 - 1);
}

void put32(std::vector<std::uint8_t>& out, std::uint32_t v) {
    for (int s = 24; s >= 0; s -= 8) out.push_back(static_cast<std::uint8_t>(v >> s));
}

}  // namespace

std::uint32_t CZemPngWriter::crc(const std::uint8_t* p, size_t n, std::uint32_t c) {
    for (size_t i = 0; i < n; ++i) {
        c ^= p[i];
        for (int k = 0; k < 8; ++k) c = (c >> 1) ^ (0xEDB88320u & (0u - (c & 1u)));
    }
    return c;
}

// One fixed-code block; at each byte the longer run of a repeat of the byte
// before or of the row above is sent as a match.
std::vector<std::uint8_t> CZemPngWriter::deflate(const std::vector<std::uint8_t>& data, size_t stride) {
    std::vector<std::uint8_t> out{0x78, 0x01};
    CBitSink sink(out);
    sink.bits(1, 1);
    sink.bits(1, 2);
    size_t i = 0;
    while (i < data.size()) {
        size_t best = 0;
        size_t bestDistance = 0;
        for (size_t distance : {static_cast<size_t>(3), stride}) {
            if (distance == 0 || i < distance || distance > 32768) continue;
            size_t n = 0;
            while (n < 258 && i + n < data.size() && data[i + n] == data[i + n - distance]) ++n;
            if (n > best) {
                best = n;
                bestDistance = distance;
            }
        }
        if (best >= 3) {
            match(sink, static_cast<unsigned>(best), static_cast<unsigned>(bestDistance));
            i += best;
        } else {
            literal(sink, data[i++]);
        }
    }
    literal(sink, 256);
    sink.flush();
    std::uint32_t a = 1, b = 0;
    for (std::uint8_t v : data) {
        a = (a + v) % 65521;
        b = (b + a) % 65521;
    }
    put32(out, (b << 16) | a);
    return out;
}

void CZemPngWriter::chunk(std::vector<std::uint8_t>& out, const char* type, const std::vector<std::uint8_t>& body) {
    put32(out, static_cast<std::uint32_t>(body.size()));
    const size_t start = out.size();
    out.insert(out.end(), type, type + 4);
    out.insert(out.end(), body.begin(), body.end());
    put32(out, crc(out.data() + start, out.size() - start) ^ 0xFFFFFFFFu);
}

bool CZemPngWriter::write(const std::string& path, int width, int height, const std::vector<std::uint8_t>& rgb) {
    const size_t row = static_cast<size_t>(width) * 3;
    if (width <= 0 || height <= 0 || rgb.size() != row * static_cast<size_t>(height)) return false;
    std::vector<std::uint8_t> raw;
    for (int y = 0; y < height; ++y) {
        raw.push_back(0);
        raw.insert(raw.end(), rgb.begin() + static_cast<long>(row * y), rgb.begin() + static_cast<long>(row * (y + 1)));
    }
    std::vector<std::uint8_t> png{0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};
    std::vector<std::uint8_t> ihdr;
    put32(ihdr, static_cast<std::uint32_t>(width));
    put32(ihdr, static_cast<std::uint32_t>(height));
    ihdr.insert(ihdr.end(), {8, 2, 0, 0, 0});
    chunk(png, "IHDR", ihdr);
    chunk(png, "IDAT", deflate(raw, row + 1));
    chunk(png, "IEND", {});
    std::FILE* f = std::fopen(path.c_str(), "wb");
    if (!f) return false;
    const bool ok = std::fwrite(png.data(), 1, png.size(), f) == png.size();
    return std::fclose(f) == 0 && ok;
}
