#pragma once

#include <cstdint>
#include <string>
#include <vector>

// Writes 8-bit RGB pictures as PNG files, compressed with run-length matches
// under deflate's fixed codes (enough for line art on a plain ground).
class CZemPngWriter {
public:
    // rgb holds width * height * 3 bytes, row by row from the top.
    static bool write(const std::string& path, int width, int height, const std::vector<std::uint8_t>& rgb);

private:
    static std::vector<std::uint8_t> deflate(const std::vector<std::uint8_t>& data, size_t stride);
    static std::uint32_t crc(const std::uint8_t* p, size_t n, std::uint32_t c = 0xFFFFFFFFu);
    static void chunk(std::vector<std::uint8_t>& out, const char* type, const std::vector<std::uint8_t>& body);
};
