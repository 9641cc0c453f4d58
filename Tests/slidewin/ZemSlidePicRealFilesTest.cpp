#include "CBitmap.h"
#include "CClientDC.h"
#include "SlideWindow.h"
#include "ZemPngFile.h"
#include "ZemSlideData.h"

#include <gtest/gtest.h>

#include <filesystem>
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
        for (int k = 0; k < kWidth * kHeight; k += 2)
            drawn += memory.GetPixel(k % kWidth, k / kWidth) != RGB(0, 0, 0);
    }
    EXPECT_TRUE(zemWritePng(static_cast<HBITMAP>(bitmap.m_hObject), file.wstring().c_str())) << file;
    return drawn;
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
        window.paint();
        long width = 0, height = 0;
        ASSERT_TRUE(window.pic().getSize(width, height)) << file.path();
        EXPECT_EQ(width, header.width()) << file.path();
        EXPECT_EQ(height, header.height()) << file.path();
        const int drawn = savePicture(window, kPictures / (file.path().stem().string() + ".png"));
        EXPECT_EQ(drawn == 0, file.path().filename() == "LOGO_COA_DYN.sld") << file.path();
        ++files;
    }
    EXPECT_EQ(files, 21);
}
