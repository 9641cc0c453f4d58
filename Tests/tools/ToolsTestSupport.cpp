#include "ToolsTestSupport.h"

#include <wincodec.h>
#include <wrl/client.h>

#include <fstream>
#include <iterator>

using Microsoft::WRL::ComPtr;

namespace toolstest {

namespace {

// A path of the build given with forward slashes, in the platform's form.
std::filesystem::path windowsPath(const char* path) { return std::filesystem::path(path).make_preferred(); }

int CALLBACK countRecord(HDC, HANDLETABLE*, const ENHMETARECORD* record, int, LPARAM counts)
{
    ++(*reinterpret_cast<std::map<DWORD, int>*>(counts))[record->iType];
    return 1;
}

}  // namespace

std::filesystem::path freshFolder(const wchar_t* name)
{
    const std::filesystem::path folder = windowsPath(ZEM_BUILD_DIR) / L"Tests" / name;
    std::error_code ignored;
    std::filesystem::remove_all(folder, ignored);
    std::filesystem::create_directories(folder);
    return folder;
}

std::filesystem::path slides() { return windowsPath(ZEM_TESTDATA_DIR) / L"slides"; }

// The child writes into a file that the test reads when it has ended.
ProgramRun run(const char* program, const std::vector<std::wstring>& arguments)
{
    ProgramRun result;
    const std::filesystem::path log = freshFolder(L"tools-run") / L"output.txt";
    SECURITY_ATTRIBUTES inherit = {sizeof inherit, nullptr, TRUE};
    HANDLE file = CreateFileW(log.c_str(), GENERIC_WRITE, FILE_SHARE_READ, &inherit, CREATE_ALWAYS, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return result;
    STARTUPINFOW startup = {};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdOutput = startup.hStdError = file;
    PROCESS_INFORMATION process = {};
    std::wstring line = L"\"" + windowsPath(program).wstring() + L"\"";
    for (const std::wstring& argument : arguments)
        line += L" \"" + argument + L"\"";
    if (CreateProcessW(nullptr, line.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &startup, &process)) {
        if (WaitForSingleObject(process.hProcess, 120000) != WAIT_OBJECT_0)
            TerminateProcess(process.hProcess, 0xFFFFFFFF);
        GetExitCodeProcess(process.hProcess, &result.exitCode);
        CloseHandle(process.hThread);
        CloseHandle(process.hProcess);
    }
    CloseHandle(file);
    const std::vector<unsigned char> bytes = readBytes(log);
    result.output.assign(bytes.begin(), bytes.end());
    return result;
}

Metafile readMetafile(const std::filesystem::path& file)
{
    Metafile out;
    const HENHMETAFILE metafile = GetEnhMetaFileW(file.c_str());
    if (!metafile)
        return out;
    out.read = GetEnhMetaFileHeader(metafile, sizeof out.header, &out.header) != 0;
    EnumEnhMetaFile(nullptr, metafile, countRecord, &out.counts, nullptr);
    DeleteEnhMetaFile(metafile);
    return out;
}

Picture decodePng(const std::filesystem::path& file)
{
    Picture out;
    const bool started = SUCCEEDED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED));
    {
        ComPtr<IWICImagingFactory> factory;
        ComPtr<IWICBitmapDecoder> decoder;
        ComPtr<IWICBitmapFrameDecode> frame;
        ComPtr<IWICFormatConverter> converter;
        UINT w = 0, h = 0;
        if (SUCCEEDED(CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(&factory))) &&
            SUCCEEDED(factory->CreateDecoderFromFilename(file.c_str(), nullptr, GENERIC_READ,
                                                         WICDecodeMetadataCacheOnDemand, &decoder)) &&
            SUCCEEDED(decoder->GetFrame(0, &frame)) && SUCCEEDED(factory->CreateFormatConverter(&converter)) &&
            SUCCEEDED(converter->Initialize(frame.Get(), GUID_WICPixelFormat32bppBGR, WICBitmapDitherTypeNone, nullptr,
                                            0.0, WICBitmapPaletteTypeCustom)) &&
            SUCCEEDED(converter->GetSize(&w, &h))) {
            std::vector<unsigned> pixels(static_cast<size_t>(w) * h);
            if (SUCCEEDED(converter->CopyPixels(nullptr, w * 4, static_cast<UINT>(pixels.size() * 4),
                                                reinterpret_cast<BYTE*>(pixels.data())))) {
                for (unsigned& p : pixels)
                    p &= 0xFFFFFF;
                out = {static_cast<int>(w), static_cast<int>(h), std::move(pixels)};
            }
        }
    }
    if (started)
        CoUninitialize();
    return out;
}

std::vector<unsigned char> readBytes(const std::filesystem::path& file)
{
    std::ifstream in(file, std::ios::binary);
    return std::vector<unsigned char>(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

void writeBytes(const std::filesystem::path& file, const unsigned char* bytes, size_t count)
{
    std::ofstream out(file, std::ios::binary);
    out.write(reinterpret_cast<const char*>(bytes), static_cast<std::streamsize>(count));
}

}  // namespace toolstest
