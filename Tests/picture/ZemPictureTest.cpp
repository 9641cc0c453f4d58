#include "PictureFiles.h"
#include "PictureWindow.h"
#include "ZemGdiCount.h"
#include "ZemModalScript.h"

#include <gtest/gtest.h>
#include <ole2.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

using picturetest::imagePath;
using picturetest::quadrants;

namespace {

constexpr COLORREF kRed = RGB(255, 0, 0);
constexpr COLORREF kGreen = RGB(0, 255, 0);
constexpr COLORREF kBlue = RGB(0, 0, 255);
constexpr COLORREF kYellow = RGB(255, 255, 0);
constexpr COLORREF kMagenta = RGB(255, 0, 255);
constexpr COLORREF kCyan = RGB(0, 255, 255);

// The application initialises OLE before it loads pictures; the library doesn't.
class OleEnvironment : public ::testing::Environment {
public:
    void SetUp() override { ASSERT_TRUE(SUCCEEDED(OleInitialize(nullptr))); }
    void TearDown() override { OleUninitialize(); }
};
::testing::Environment* const g_ole = ::testing::AddGlobalTestEnvironment(new OleEnvironment);

// 800 by 600 pixels: red and green over blue and yellow.
std::wstring largeImage()
{
    const std::wstring path = imagePath(L"large.bmp");
    EXPECT_TRUE(picturetest::writeBmp(path, quadrants(800, 600, kRed, kGreen, kBlue, kYellow)));
    return path;
}

// The quadrant image is shown in shown (left, top, width, height) of a 400 by
// 400 control: each quadrant's colour inside it, the image's edges to the
// pixel, and the magenta background just outside; only points within the control.
void expectShown(PictureWindow& window, RECT shown)
{
    const int width = shown.right, height = shown.bottom, left = shown.left, top = shown.top;
    const COLORREF background = kMagenta;
    const auto inside = [](int v) { return v >= 0 && v < 400; };
    const int quarterX = left + width / 4;
    const int quarterY = top + height / 4;
    const struct {
        int x, y;
        COLORREF color;
    } points[] = {{quarterX, quarterY, kRed},
                  {left + 3 * width / 4, quarterY, kGreen},
                  {quarterX, top + 3 * height / 4, kBlue},
                  {left + 3 * width / 4, top + 3 * height / 4, kYellow},
                  {left, quarterY, kRed},
                  {left - 1, quarterY, background},
                  {left + width - 1, quarterY, kGreen},
                  {left + width, quarterY, background},
                  {quarterX, top, kRed},
                  {quarterX, top - 1, background},
                  {quarterX, top + height - 1, kBlue},
                  {quarterX, top + height, background}};
    for (const auto& point : points) {
        if (inside(point.x) && inside(point.y)) {
            EXPECT_EQ(window.pixel(point.x, point.y), point.color) << "at " << point.x << ", " << point.y;
        }
    }
}

// Text without its line ends.
std::wstring trimmed(std::wstring text)
{
    while (!text.empty() && (text.back() == L'\n' || text.back() == L'\r'))
        text.pop_back();
    return text;
}

// The texts of a dialog's child windows, without their line ends.
std::vector<std::wstring> childTexts(HWND dialog)
{
    std::vector<std::wstring> texts;
    const WNDENUMPROC collect = [](HWND child, LPARAM data) -> BOOL {
        wchar_t text[512] = {};
        GetWindowTextW(child, text, 512);
        reinterpret_cast<std::vector<std::wstring>*>(data)->push_back(trimmed(text));
        return TRUE;
    };
    EnumChildWindows(dialog, collect, reinterpret_cast<LPARAM>(&texts));
    return texts;
}

}  // namespace

TEST(ZemPicture, FitsALargeImageZoomsAndPansItAndKeepsASmallOneAtItsSize)
{
    PictureWindow window;
    window.pic().SetBackColor(kMagenta);
    ASSERT_TRUE(window.pic().LoadImageW(largeImage().c_str()));
    window.paint();
    // Fit factor max(600 / 400, 800 / 400) = 2: 400 by 300, 50 down.
    expectShown(window, {0, 50, 400, 300});

    // One notch of 1.5 about (100, 100) moves the corner from (0, 50) to
    // (100 - 100 * 1.5, 100 - 50 * 1.5) and shows 600 by 450.
    window.wheel(120, {100, 100});
    window.update();
    expectShown(window, {-50, 25, 600, 450});
    window.wheel(-120, {100, 100});
    EXPECT_EQ(window.pic().position().x, 0);
    EXPECT_EQ(window.pic().position().y, 50);
    EXPECT_DOUBLE_EQ(window.pic().zoom(), 1.0);

    window.wheel(480, {200, 200});
    EXPECT_DOUBLE_EQ(window.pic().zoom(), 1.5) << "a large delta is still one step";
    int accepted = 1;
    POINT refused = {};
    for (int notch = 0; notch < 30; ++notch) {
        const double before = window.pic().zoom();
        refused = window.pic().position();
        window.wheel(120, {200, 200});
        accepted += window.pic().zoom() != before ? 1 : 0;
    }
    EXPECT_EQ(accepted, 8) << "zoom stops above 20";
    EXPECT_NEAR(window.pic().zoom(), std::pow(1.5, 8), 1e-9);
    EXPECT_EQ(window.pic().position().x, refused.x);

    for (int notch = 0; notch < 30; ++notch)
        window.wheel(-120, {200, 200});
    EXPECT_NEAR(window.pic().zoom(), 1.0 / 2.25, 1e-9) << "zoom stops below 0.5";

    // Reset fits again; the middle button pans from there.
    window.pic().Reset();
    window.paint();
    const int gdiObjects = zemGdiObjectCount();
    window.send(WM_MBUTTONDOWN, MK_MBUTTON, {100, 100});
    EXPECT_EQ(GetCapture(), window.hwnd());
    EXPECT_EQ(GetFocus(), window.hwnd());
    window.send(WM_MOUSEMOVE, MK_MBUTTON, {110, 90});
    // The paint still pending takes the last position along.
    window.send(WM_MOUSEMOVE, MK_MBUTTON, {130, 80});
    window.update();
    expectShown(window, {30, 30, 400, 300});
    window.send(WM_MOUSEMOVE, 0, {300, 300});
    window.send(WM_MBUTTONUP, 0, {300, 300});
    EXPECT_EQ(GetCapture(), nullptr);
    window.update();
    expectShown(window, {30, 30, 400, 300});
    EXPECT_EQ(zemGdiObjectCount(), gdiObjects) << "every paint gives back what it made";

    const std::wstring small = imagePath(L"small.bmp");
    ASSERT_TRUE(picturetest::writeBmp(small, quadrants(100, 60, kRed, kGreen, kBlue, kYellow)));
    ASSERT_TRUE(window.pic().LoadImageW(small.c_str()));
    window.paint();
    expectShown(window, {150, 170, 100, 60});
}

TEST(ZemPicture, TheBackgroundIsTheSetColourUnlessTransparentAndAFailedLoadEmptiesTheControl)
{
    PictureWindow window(100, 100);
    CZemTestHost host;
    CZemPicture fromTemplate;
    ASSERT_TRUE(fromTemplate.SubclassWindow(host.addControl(L"STATIC", SS_LEFT, 7, {0, 0, 50, 50})));
    EXPECT_EQ(fromTemplate.GetStyle() & SS_NOTIFY, static_cast<DWORD>(SS_NOTIFY)) << "a static control notifies";
    window.paint();
    EXPECT_EQ(window.pixel(50, 50), GetSysColor(COLOR_BTNFACE)) << "an empty control";
    window.pic().SetBackColor(kCyan);
    EXPECT_FALSE(GetUpdateRect(window.hwnd(), nullptr, FALSE)) << "the setter doesn't repaint";
    window.paint();
    EXPECT_EQ(window.pixel(50, 50), kCyan);

    PictureWindow transparent(100, 100, WS_EX_TRANSPARENT);
    transparent.pic().SetBackColor(kCyan);
    transparent.paint();
    EXPECT_EQ(transparent.pixel(50, 50), GetSysColor(COLOR_BTNFACE));

    // A failed load says why when the system knows, and leaves the control empty.
    ASSERT_TRUE(window.pic().LoadImageW(largeImage().c_str()));
    std::vector<std::wstring> texts;
    CZemModalScript script({CZemModalScript::run([&texts](HWND box) { texts = childTexts(box); }),
                            CZemModalScript::clickButton(IDOK)});
    script.arm();
    EXPECT_TRUE(window.pic().LoadImageW(imagePath(L"missing.bmp").c_str()));
    EXPECT_TRUE(script.finished());
    EXPECT_FALSE(script.timedOut());
    EXPECT_EQ(script.firstCaption(), L"CZemPicture::LoadImage");
    wchar_t system[260] = {};
    FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, ERROR_FILE_NOT_FOUND, 0, system,
                   260, nullptr);
    EXPECT_NE(std::find(texts.begin(), texts.end(), trimmed(system)), texts.end())
        << "the system's text for a missing file";
    window.paint();
    EXPECT_EQ(window.pixel(50, 50), kCyan) << "the former image is gone";
    EXPECT_FALSE(window.pic().Copy());

    CZemModalScript none({CZemModalScript::clickButton(IDOK)});
    none.arm();
    EXPECT_TRUE(window.pic().LoadImageW(L"")) << "a failure without an error code";
    EXPECT_EQ(none.firstCaption(), L"") << "no message box";
    EXPECT_FALSE(window.pic().LoadImageW(nullptr));
}

TEST(ZemPicture, CopyPutsTheWholeImageOnTheClipboardWhateverTheZoom)
{
    PictureWindow window;
    EXPECT_FALSE(window.pic().Copy()) << "nothing to copy";
    ASSERT_TRUE(window.pic().LoadImageW(largeImage().c_str()));
    window.wheel(120, {10, 10});
    window.send(WM_MBUTTONDOWN, MK_MBUTTON, {0, 0});
    window.send(WM_MOUSEMOVE, MK_MBUTTON, {70, 20});
    window.send(WM_MBUTTONUP, 0, {70, 20});
    ASSERT_TRUE(window.pic().Copy());

    ASSERT_TRUE(OpenClipboard(window.hwnd())) << "the clipboard isn't held after the copy";
    const auto metafile = static_cast<HENHMETAFILE>(GetClipboardData(CF_ENHMETAFILE));
    ASSERT_NE(metafile, nullptr);
    ENHMETAHEADER header = {};
    GetEnhMetaFileHeader(metafile, sizeof header, &header);
    EXPECT_EQ(header.rclBounds.right, 799);
    EXPECT_EQ(header.rclBounds.bottom, 599);

    const HDC screen = GetDC(nullptr);
    const HDC memory = CreateCompatibleDC(screen);
    const HBITMAP bitmap = CreateCompatibleBitmap(screen, 800, 600);
    const HGDIOBJ former = SelectObject(memory, bitmap);
    const RECT all = {0, 0, 800, 600};
    PlayEnhMetaFile(memory, metafile, &all);
    CloseClipboard();
    EXPECT_EQ(GetPixel(memory, 200, 150), kRed);
    EXPECT_EQ(GetPixel(memory, 799, 599), kYellow);
    SelectObject(memory, former);
    DeleteObject(bitmap);
    DeleteDC(memory);
    ReleaseDC(nullptr, screen);
}

// Pictures other than bitmaps are drawn through their own branch. Larger than
// the control of 200 by 200 they are fitted: the icon of 240 by 120 shows
// 200 by 100 at (0, 50), the metafile of 300 by 240 shows 200 by 160 at
// (0, 20). The colour in the middle, and 2 pixels inside and outside the top
// and bottom edges.
TEST(ZemPicture, FitsIconsAndMetafilesLikeBitmaps)
{
    const std::wstring icon = imagePath(L"a.ico"), metafile = imagePath(L"a.emf");
    ASSERT_TRUE(picturetest::writeIco(icon, quadrants(240, 120, kGreen, kGreen, kGreen, kGreen)));
    ASSERT_TRUE(picturetest::writeEmf(metafile, 300, 240, kYellow));
    const struct {
        const std::wstring& path;
        RECT shown;
        COLORREF color;
    } formats[] = {{icon, {0, 50, 200, 150}, kGreen}, {metafile, {0, 20, 200, 180}, kYellow}};
    for (const auto& format : formats) {
        SCOPED_TRACE(format.path);
        PictureWindow window(200, 200);
        window.pic().SetBackColor(kCyan);
        CZemModalScript failure({CZemModalScript::clickButton(IDOK)});
        failure.arm();
        ASSERT_TRUE(window.pic().LoadImageW(format.path.c_str()));
        EXPECT_EQ(failure.firstCaption(), L"") << "loaded";
        EXPECT_EQ(window.pic().position().x, format.shown.left);
        EXPECT_EQ(window.pic().position().y, format.shown.top);
        window.paint();
        EXPECT_EQ(window.pixel(100, 100), format.color);
        EXPECT_NE(window.pixel(100, format.shown.top + 2), kCyan);
        EXPECT_EQ(window.pixel(100, format.shown.top - 2), kCyan);
        EXPECT_NE(window.pixel(100, format.shown.bottom - 3), kCyan);
        EXPECT_EQ(window.pixel(100, format.shown.bottom + 2), kCyan);
    }
}
