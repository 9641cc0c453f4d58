#include "CBitmap.h"
#include "CClientDC.h"
#include "SlideWindow.h"
#include "ZemPngFile.h"
#include "ZemSlideData.h"
#include "ZemSlideLibrary.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string>

namespace {

const std::filesystem::path kSlides = std::filesystem::path(ZEM_TESTDATA_DIR) / "slides";
const std::filesystem::path kPictures = std::filesystem::path(ZEM_BUILD_DIR) / "Tests" / "slides";
constexpr int kWidth = 640;
constexpr int kHeight = 480;

// The painted control as a picture file; the number of pixels that aren't
// the background (black).
int savePicture(SlideWindow& window, const std::filesystem::path& file)
{
    CClientDC screen(nullptr);
    CDC memory;
    memory.CreateCompatibleDC(&screen);
    CBitmap bitmap;
    bitmap.CreateCompatibleBitmap(&screen, kWidth, kHeight);
    int drawn = 0;
    {
        const CZemDCSelect selected = memory.SelectObject(bitmap);
        const HDC painted = GetDC(window.pic());
        BitBlt(memory, 0, 0, kWidth, kHeight, painted, 0, 0, SRCCOPY);
        ReleaseDC(window.pic(), painted);
        for (int y = 0; y < kHeight; y += 2) {
            for (int x = 0; x < kWidth; x += 2)
                drawn += memory.GetPixel(x, y) != RGB(0, 0, 0);
        }
    }
    EXPECT_TRUE(zemWritePng(static_cast<HBITMAP>(bitmap.m_hObject), file.wstring().c_str())) << file;
    EXPECT_GT(std::filesystem::file_size(file), 100u) << file;
    return drawn;
}

// Paints the slide held and checks its size against its header.
void paintAndSave(SlideWindow& window, const CZemSlideData& header, const std::filesystem::path& file, bool empty)
{
    window.paint();
    long width = 0, height = 0;
    ASSERT_TRUE(window.pic().getSize(width, height)) << file;
    EXPECT_EQ(width, header.width()) << file;
    EXPECT_EQ(height, header.height()) << file;
    const int drawn = savePicture(window, file);
    EXPECT_EQ(drawn == 0, empty) << file;
}

bool isAscii(const std::string& text)
{
    return std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

}  // namespace

// Pictures for a person to look at: build/<tree>/Tests/slides/*.png.
TEST(ZemSlidePicRealFiles, EverySlidePaintsAndIsSavedAsAPicture)
{
    std::filesystem::create_directories(kPictures);
    SlideWindow window(kWidth, kHeight);
    int files = 0;
    for (const auto& file : std::filesystem::recursive_directory_iterator(kSlides)) {
        const std::string ext = file.path().extension().string();
        if (ext != ".sld" && ext != ".SLD")
            continue;
        ASSERT_TRUE(window.pic().show(file.path().wstring().c_str(), nullptr)) << file.path();
        CZemSlideData header;
        ASSERT_TRUE(header.loadFile(file.path()));
        header.readHeader();
        const bool empty = file.path().filename() == "LOGO_COA_DYN.sld";
        paintAndSave(window, header, kPictures / (file.path().stem().string() + ".png"), empty);
        ++files;
    }
    EXPECT_EQ(files, 21);
}

TEST(ZemSlidePicRealFiles, EverySlideOfEachLibraryPaintsAndIsSavedAsAPicture)
{
    std::filesystem::create_directories(kPictures);
    SlideWindow window(kWidth, kHeight);
    for (const char* name : {"velisp/mylib.slb", "autolisp-cn/LISP.SLB", "autolisp-cn/xyp1964.slb"}) {
        const std::filesystem::path path = kSlides / name;
        std::ifstream in(path, std::ios::binary);
        int index = 0;
        for (const CZemSlideLibrary::Entry& entry : CZemSlideLibrary::directory(in)) {
            CZemSlideData data;
            ASSERT_TRUE(data.loadFromLibrary(in, entry.name.c_str()));
            // Names in another code page than the system's are reached by their bytes.
            if (isAscii(entry.name)) {
                const std::wstring wide(entry.name.begin(), entry.name.end());
                ASSERT_TRUE(window.pic().show(wide.c_str(), path.wstring().c_str())) << entry.name;
            } else {
                window.pic().show(const_cast<unsigned char*>(data.bytes()), static_cast<int>(data.size()));
            }
            data.readHeader();
            const std::string picture = path.stem().string() + "-" + std::to_string(++index) +
                                        (isAscii(entry.name) ? "-" + entry.name : "") + ".png";
            paintAndSave(window, data, kPictures / picture, false);
        }
    }
}
