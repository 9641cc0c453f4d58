// zemview: shows a slide, a slide of a library or one of the demo's drawings
// in a window: the wheel zooms about the cursor, the held middle button pans,
// a middle double click or the F or Home key fits, Esc closes, and a left
// click names the group of the item under the cursor in the title.
//
//   zemview <slide-file>
//   zemview <slide-library> <slide-name>
//   zemview plan|legend|slide [<slide-library> <slide-name>]
//
// Exit codes: 0 when the window is closed; 1 bad usage; 2 the input can't be
// read; 3 the window can't be made.
#include "ZemDemoDrawings.h"
#include "ZemDemoPlanData.h"
#include "ZemGDX.h"
#include "ZemGdxImageSld.h"
#include "ZemGdxMap.h"
#include "ZemSlideImage.h"
#include "ZemViewFrame.h"

#include <windows.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace {

enum ExitCode { exitClosed = 0, exitUsage = 1, exitUnreadable = 2, exitNoWindow = 3 };

const ZemDemoDrawing* demoDrawing(const std::wstring& name)
{
    for (const ZemDemoDrawing& drawing : zem_demo_drawings()) {
        if (name == drawing.name)
            return &drawing;
    }
    return nullptr;
}

// The plan's title block picture is placed in the metafile's pixels; on
// the screen it is left out.
bool loadDemo(CZemGDX& list, const ZemDemoDrawing& drawing, int argc, wchar_t** argv, std::wstring& error)
{
    wchar_t temp[MAX_PATH];
    ZemDemoInputs inputs;
    inputs.folder = GetTempPathW(MAX_PATH, temp) ? temp : L".";
    if (argc == 4) {
        inputs.slideLibrary = argv[2];
        inputs.slideName = argv[3];
    }
    if (drawing.needsSlide && inputs.slideLibrary.empty()) {
        error = L"the drawing needs a slide library and a slide name";
        return false;
    }
    if (!drawing.build(list, drawing, inputs, error))
        return false;
    CZemArrayTempl<int> picture;
    list.clear(picture.append(zemdemo::groupPicture));
    return true;
}

bool loadSlideFile(CZemGDX& list, const wchar_t* path, std::wstring& error)
{
    std::ifstream in(std::filesystem::path(path), std::ios::binary);
    const std::vector<char> bytes((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    CZemSlideImage slide;
    if (!bytes.empty() && slide.assign(bytes.data(), static_cast<long>(bytes.size())) && slide.image(list, 0, nullptr))
        return true;
    error = std::wstring(path) + L" is not a slide with anything to show";
    return false;
}

bool load(CZemGDX& list, int argc, wchar_t** argv, std::wstring& error)
{
    if (const ZemDemoDrawing* drawing = demoDrawing(argv[1]))
        return loadDemo(list, *drawing, argc, argv, error);
    if (argc == 2)
        return loadSlideFile(list, argv[1], error);
    if (zem_gdx_image_sld(&list, argv[2], argv[1], 0, nullptr))
        return true;
    error = std::wstring(L"slide ") + argv[2] + L" of " + argv[1] + L" can't be read";
    return false;
}

int runWindow(CZemViewFrame& frame)
{
    MSG msg;
    while (GetMessageW(&msg, nullptr, 0, 0) > 0) {
        if (msg.message == WM_KEYDOWN && (msg.wParam == 'F' || msg.wParam == VK_HOME)) {
            frame.fit();
            continue;
        }
        if (msg.message == WM_KEYDOWN && msg.wParam == VK_ESCAPE) {
            frame.DestroyWindow();
            continue;
        }
        TranslateMessage(&msg);
        DispatchMessageW(&msg);
    }
    return exitClosed;
}

}  // namespace

int wmain(int argc, wchar_t** argv)
{
    if (argc < 2 || argc > 4 || (argc == 3 && demoDrawing(argv[1]))) {
        fwprintf(stderr, L"usage: zemview <slide-file> | <slide-library> <slide-name> | "
                         L"plan|legend|slide [<slide-library> <slide-name>]\n");
        return exitUsage;
    }
    const int key = createGdxInMap(nullptr);
    CZemGDX* list = getGdxFromMap(key);
    std::wstring error;
    if (!list || !load(*list, argc, argv, error)) {
        fwprintf(stderr, L"zemview: %ls\n", error.c_str());
        gdxMapRemoveAt(key);
        return exitUnreadable;
    }
    int code = exitNoWindow;
    {
        CZemViewFrame frame;
        if (frame.open(list, std::wstring(L"zemview - ") + argv[argc == 4 && !demoDrawing(argv[1]) ? 2 : 1], 1200, 850))
            code = runWindow(frame);
        else
            fwprintf(stderr, L"zemview: the window can't be made\n");
    }
    gdxMapRemoveAt(key);
    return code;
}
