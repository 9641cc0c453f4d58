#pragma once

#include <cstddef>
#include <string>

// Turns one slide into an enhanced metafile and a PNG picture of it, by way
// of a display list as the library draws slides: <folder>\<name>.emf and
// <folder>\<name>.png, the longer side 1024 pixels in the slide's proportions.
class CZemSlideConverter {
public:
    enum Outcome {
        converted,   // the whole slide was drawn
        truncated,   // the records break off; what was read is drawn
        unreadable,  // not a slide, or its header is cut: nothing written
        notWritten   // a file could not be written
    };

    struct Result {
        Outcome outcome = unreadable;
        int items = 0;
        int width = 0;
        int height = 0;
        std::wstring emf;
        std::wstring png;
    };

    explicit CZemSlideConverter(const std::wstring& folder) : m_folder(folder) {}

    Result convert(const unsigned char* bytes, std::size_t size, const std::wstring& name) const;

    // Whether bytes begin with the identification of a slide.
    static bool isSlide(const unsigned char* bytes, std::size_t size);

private:
    static bool headerComplete(const unsigned char* bytes, std::size_t size);
    static bool recordsComplete(const unsigned char* bytes, std::size_t size);
    static void outputSize(const unsigned char* bytes, std::size_t size, int& width, int& height);

    std::wstring m_folder;
};
