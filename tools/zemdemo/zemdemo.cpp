// zemdemo: builds the demo's display lists as an application of the family
// would - a floor plan, a legend sheet and a slide of a library - and writes
// each as an enhanced metafile and as a PNG picture of it. Prints what it
// wrote with sizes and timings; exits 1 if anything failed, 2 on bad usage.
//
//   zemdemo <output-folder> [<slide-library> <slide-name>]
#include "ZemDemoDrawings.h"
#include "ZemGDX.h"
#include "ZemGdxMap.h"
#include "ZemMetafileBitmap.h"
#include "ZemRefresh.h"

#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <string>
#include <system_error>

namespace {

class Stopwatch {
public:
    Stopwatch() { QueryPerformanceCounter(&m_start); }
    // Seconds since the start or the last lap.
    double lap()
    {
        LARGE_INTEGER now, frequency;
        QueryPerformanceCounter(&now);
        QueryPerformanceFrequency(&frequency);
        const double seconds = static_cast<double>(now.QuadPart - m_start.QuadPart) / frequency.QuadPart;
        m_start = now;
        return seconds;
    }

private:
    LARGE_INTEGER m_start;
};

int CALLBACK countRecord(HDC, HANDLETABLE*, const ENHMETARECORD*, int, LPARAM count)
{
    ++*reinterpret_cast<long*>(count);
    return 1;
}

// The number of records of a metafile file; -1 if it can't be read.
long recordCount(const std::wstring& path)
{
    const HENHMETAFILE metafile = GetEnhMetaFileW(path.c_str());
    if (!metafile)
        return -1;
    long count = 0;
    EnumEnhMetaFile(nullptr, metafile, countRecord, &count, nullptr);
    DeleteEnhMetaFile(metafile);
    return count;
}

long long fileSize(const std::wstring& path)
{
    std::error_code failed;
    const auto size = std::filesystem::file_size(path, failed);
    return failed ? -1 : static_cast<long long>(size);
}

// One drawing from its list to its two files; false, with a message, on failure.
bool writeDrawing(const ZemDemoDrawing& drawing, const ZemDemoInputs& inputs)
{
    const std::wstring base = inputs.folder + L"\\" + drawing.name;
    const std::wstring emf = base + L".emf", png = base + L".png";
    const int key = createGdxInMap(nullptr);
    CZemGDX* gdx = getGdxFromMap(key);
    if (!gdx) {
        fwprintf(stderr, L"zemdemo: %ls: no display list could be made\n", drawing.name);
        return false;
    }
    Stopwatch watch;
    std::wstring error;
    const bool built = drawing.build(*gdx, drawing, inputs, error);
    const double buildTime = watch.lap();
    const int items = gdx->lenGet();
    const bool drawn = built && refresh(gdx, emf.c_str(), drawing.height, drawing.width);
    const double drawTime = watch.lap();
    gdxMapRemoveAt(key);
    if (!built || !drawn) {
        fwprintf(stderr, L"zemdemo: %ls: %ls\n", drawing.name, built ? L"the metafile was not written" : error.c_str());
        return false;
    }
    const bool pictured = zemMetafileToPng(emf.c_str(), drawing.width, drawing.height, png.c_str());
    const double pictureTime = watch.lap();
    const long records = recordCount(emf);
    if (!pictured || records < 2) {
        fwprintf(stderr, L"zemdemo: %ls: %ls\n", drawing.name,
                 pictured ? L"the metafile can't be read back" : L"the PNG picture was not written");
        return false;
    }
    wprintf(L"%-7ls %6d items  list %.3f s\n", drawing.name, items, buildTime);
    wprintf(L"        %ls  %lld bytes, %ld records, %d x %d, %.3f s\n", emf.c_str(), fileSize(emf), records,
            drawing.width, drawing.height, drawTime);
    wprintf(L"        %ls  %lld bytes, %.3f s\n", png.c_str(), fileSize(png), pictureTime);
    return true;
}

}  // namespace

int wmain(int argc, wchar_t** argv)
{
    if (argc != 2 && argc != 4) {
        fwprintf(stderr, L"usage: zemdemo <output-folder> [<slide-library> <slide-name>]\n");
        return 2;
    }
    ZemDemoInputs inputs;
    inputs.folder = argv[1];
    std::replace(inputs.folder.begin(), inputs.folder.end(), L'/', L'\\');
    if (argc == 4) {
        inputs.slideLibrary = argv[2];
        inputs.slideName = argv[3];
    }
    std::error_code failed;
    std::filesystem::create_directories(inputs.folder, failed);
    if (!std::filesystem::is_directory(inputs.folder, failed)) {
        fwprintf(stderr, L"zemdemo: can't make the folder %ls\n", inputs.folder.c_str());
        return 1;
    }
    int written = 0, failures = 0;
    for (const ZemDemoDrawing& drawing : zem_demo_drawings()) {
        if (drawing.needsSlide && inputs.slideLibrary.empty()) {
            wprintf(L"%-7ls skipped: no slide library given\n", drawing.name);
            continue;
        }
        if (writeDrawing(drawing, inputs))
            ++written;
        else
            ++failures;
        fflush(stdout);
    }
    wprintf(L"zemdemo: %d drawings written, %d failed\n", written, failures);
    return failures == 0 ? 0 : 1;
}
