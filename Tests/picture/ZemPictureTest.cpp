#include "PictureWindow.h"
#include "ZemGdiCount.h"
#include "ZemModalScript.h"

#include <gtest/gtest.h>
#include <ole2.h>

#include <cmath>
#include <string>
#include <vector>

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

// The full Windows path of name in the tests' image folder, made on first use.
std::wstring imagePath(const wchar_t* name)
{
    std::wstring folder = L"" ZEM_BUILD_DIR "\\Tests\\picture-images";
    for (wchar_t& c : folder)
        c = c == L'/' ? L'\\' : c;
    CreateDirectoryW(folder.c_str(), nullptr);
    return folder + L"\\" + name;
}

// Little-endian fields of the given byte counts.
void put(std::vector<unsigned char>& bytes, std::initializer_list<std::pair<unsigned, int>> fields)
{
    for (const auto& [value, size] : fields)
        for (int i = 0; i < size; ++i)
            bytes.push_back(static_cast<unsigned char>((value >> (8 * i)) & 0xFF));
}

// A 24-bit bitmap file of width by height pixels, red and green over blue and
// yellow: the headers, then the rows from the bottom up, each padded to 4 bytes.
std::wstring writeBmp(const wchar_t* name, int width, int height)
{
    const int stride = (width * 3 + 3) & ~3;
    const unsigned imageBytes = static_cast<unsigned>(stride * height);
    std::vector<unsigned char> bytes = {'B', 'M'};
    put(bytes, {{54 + imageBytes, 4}, {0, 4}, {54, 4}, {40, 4}, {static_cast<unsigned>(width), 4},
                {static_cast<unsigned>(height), 4}, {1, 2}, {24, 2}, {BI_RGB, 4}, {imageBytes, 4}, {3780, 4},
                {3780, 4}, {0, 4}, {0, 4}});
    for (int y = height - 1; y >= 0; --y) {
        for (int x = 0; x < width; ++x) {
            const COLORREF c = y < height / 2 ? (x < width / 2 ? kRed : kGreen) : (x < width / 2 ? kBlue : kYellow);
            bytes.insert(bytes.end(), {GetBValue(c), GetGValue(c), GetRValue(c)});
        }
        bytes.resize(bytes.size() + static_cast<std::size_t>(stride - width * 3), 0);
    }
    const std::wstring path = imagePath(name);
    const HANDLE file = CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    DWORD written = 0;
    EXPECT_TRUE(WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr));
    EXPECT_EQ(written, bytes.size());
    CloseHandle(file);
    return path;
}

// The quadrant image is shown in shown (left, top, width, height) of a 400 by
// 400 control: each quadrant's colour inside it, and its edges to the pixel
// against the magenta background; only points within the control.
void expectShown(PictureWindow& window, RECT shown)
{
    const int width = shown.right, height = shown.bottom, left = shown.left, top = shown.top;
    const int x1 = left + width / 4, y1 = top + height / 4, x3 = left + 3 * width / 4, y3 = top + 3 * height / 4;
    const struct {
        int x, y;
        COLORREF color;
    } points[] = {{x1, y1, kRed},          {x3, y1, kGreen},
                  {x1, y3, kBlue},         {x3, y3, kYellow},
                  {left, y1, kRed},        {left - 1, y1, kMagenta},
                  {left + width - 1, y1, kGreen}, {left + width, y1, kMagenta},
                  {x1, top, kRed},         {x1, top - 1, kMagenta},
                  {x1, top + height - 1, kBlue}, {x1, top + height, kMagenta}};
    for (const auto& point : points)
        if (point.x >= 0 && point.x < 400 && point.y >= 0 && point.y < 400) {
            EXPECT_EQ(window.pixel(point.x, point.y), point.color) << "at " << point.x << ", " << point.y;
        }
}

}  // namespace

TEST(ZemPicture, FitsALargeImageZoomsPansAndCopiesItAndKeepsASmallOneAtItsSize)
{
    PictureWindow window;
    window.pic().SetBackColor(kMagenta);
    ASSERT_TRUE(window.pic().LoadImageW(writeBmp(L"large.bmp", 800, 600).c_str()));
    window.paint();
    // Fit factor max(600 / 400, 800 / 400) = 2: 400 by 300, 50 down.
    expectShown(window, {0, 50, 400, 300});

    // One notch of 1.5 about (100, 100) moves the corner from (0, 50) to
    // (100 - 100 * 1.5, 100 - 50 * 1.5) and shows 600 by 450.
    window.wheel(120, {100, 100});
    window.update();
    expectShown(window, {-50, 25, 600, 450});
    window.wheel(-120, {100, 100});
    window.wheel(480, {200, 200});
    EXPECT_DOUBLE_EQ(window.pic().zoom(), 1.5) << "back to 1, then a large delta is still one step";
    for (int notch = 0; notch < 30; ++notch)
        window.wheel(120, {200, 200});
    EXPECT_NEAR(window.pic().zoom(), std::pow(1.5, 8), 1e-9) << "zoom stops above 20";
    const POINT refused = window.pic().position();
    window.wheel(120, {200, 200});
    EXPECT_EQ(window.pic().position().x, refused.x) << "a refused step doesn't move the image";

    for (int notch = 0; notch < 30; ++notch)
        window.wheel(-120, {200, 200});
    EXPECT_NEAR(window.pic().zoom(), 1.0 / 2.25, 1e-9) << "zoom stops below 0.5";

    // Reset fits again; the middle button pans from there. A first pan lets
    // Wine make the device contexts it keeps for later paints, so that the
    // count below sees only what the control makes.
    window.send(WM_MBUTTONDOWN, MK_MBUTTON, {100, 100});
    window.send(WM_MOUSEMOVE, MK_MBUTTON, {110, 90});
    window.update();
    window.send(WM_MBUTTONUP, 0, {110, 90});
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
    EXPECT_EQ(window.pic().position().x, 30) << "a move without the button doesn't pan";
    EXPECT_EQ(zemGdiObjectCount(), gdiObjects) << "every paint gives back what it made";

    // Copy puts the whole image on the clipboard whatever the zoom and pan.
    window.wheel(120, {10, 10});
    ASSERT_TRUE(window.pic().Copy());
    ASSERT_TRUE(OpenClipboard(window.hwnd())) << "the clipboard isn't held after the copy";
    const auto metafile = static_cast<HENHMETAFILE>(GetClipboardData(CF_ENHMETAFILE));
    ENHMETAHEADER header = {};
    GetEnhMetaFileHeader(metafile, sizeof header, &header);
    EXPECT_EQ(header.rclBounds.right, 799);
    EXPECT_EQ(header.rclBounds.bottom, 599);
    const HDC screen = GetDC(nullptr), memory = CreateCompatibleDC(screen);
    const HGDIOBJ former = SelectObject(memory, CreateCompatibleBitmap(screen, 800, 600));
    const RECT all = {0, 0, 800, 600};
    PlayEnhMetaFile(memory, metafile, &all);
    CloseClipboard();
    EXPECT_EQ(GetPixel(memory, 200, 150), kRed);
    EXPECT_EQ(GetPixel(memory, 799, 599), kYellow);
    DeleteObject(SelectObject(memory, former));
    DeleteDC(memory);
    ReleaseDC(nullptr, screen);

    ASSERT_TRUE(window.pic().LoadImageW(writeBmp(L"small.bmp", 100, 60).c_str()));
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
    ASSERT_TRUE(window.pic().LoadImageW(writeBmp(L"large.bmp", 800, 600).c_str()));
    std::wstring boxText;
    CZemModalScript script({CZemModalScript::run([&boxText](HWND box) {
                                EnumChildWindows(box, [](HWND child, LPARAM text) -> BOOL {
                                    wchar_t part[512] = {};
                                    GetWindowTextW(child, part, 512);
                                    *reinterpret_cast<std::wstring*>(text) += part;
                                    return TRUE;
                                }, reinterpret_cast<LPARAM>(&boxText));
                            }),
                            CZemModalScript::clickButton(IDOK)});
    script.arm();
    EXPECT_TRUE(window.pic().LoadImageW(imagePath(L"missing.bmp").c_str()));
    EXPECT_TRUE(script.finished() && !script.timedOut());
    EXPECT_EQ(script.firstCaption(), L"CZemPicture::LoadImage");
    wchar_t system[260] = {};
    FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, ERROR_FILE_NOT_FOUND, 0, system,
                   260, nullptr);
    const std::wstring reason(system, wcscspn(system, L"\r\n"));
    EXPECT_NE(boxText.find(reason), std::wstring::npos) << "the system's text for a missing file";
    window.paint();
    EXPECT_EQ(window.pixel(50, 50), kCyan) << "the former image is gone";
    EXPECT_FALSE(window.pic().Copy());

    CZemModalScript none({CZemModalScript::clickButton(IDOK)});
    none.arm();
    EXPECT_TRUE(window.pic().LoadImageW(L"")) << "a failure without an error code";
    EXPECT_EQ(none.firstCaption(), L"") << "no message box";
    EXPECT_FALSE(window.pic().LoadImageW(nullptr));
}

// Pictures other than bitmaps are drawn through their own branch. A metafile
// of 300 by 240, larger than the control of 200 by 200, is fitted to 200 by 160
// at (0, 20): its colour in the middle, and 2 pixels inside and outside the
// top and bottom edges.
TEST(ZemPicture, FitsMetafilesLikeBitmaps)
{
    const std::wstring metafile = imagePath(L"a.emf");
    const RECT frame = {0, 0, MulDiv(300, 2540, 96), MulDiv(240, 2540, 96)}, all = {0, 0, 300, 240};
    const HDC recorder = CreateEnhMetaFileW(nullptr, metafile.c_str(), &frame, nullptr);
    const HBRUSH brush = CreateSolidBrush(kYellow);
    FillRect(recorder, &all, brush);
    DeleteObject(brush);
    ASSERT_TRUE(DeleteEnhMetaFile(CloseEnhMetaFile(recorder)));
    PictureWindow window(200, 200);
    window.pic().SetBackColor(kCyan);
    CZemModalScript failure({CZemModalScript::clickButton(IDOK)});
    failure.arm();
    ASSERT_TRUE(window.pic().LoadImageW(metafile.c_str()));
    EXPECT_EQ(failure.firstCaption(), L"") << "loaded";
    EXPECT_EQ(window.pic().position().x, 0);
    EXPECT_EQ(window.pic().position().y, 20);
    window.paint();
    EXPECT_EQ(window.pixel(100, 100), kYellow);
    for (const auto& [y, color] : {std::pair{22, kYellow}, {18, kCyan}, {177, kYellow}, {182, kCyan}})
        EXPECT_EQ(window.pixel(100, y), color) << "at 100, " << y;
}
