#include "ToolsTestSupport.h"

#include <wincodec.h>
#include <wrl/client.h>

#include <algorithm>
#include <fstream>
#include <iterator>

using Microsoft::WRL::ComPtr;

namespace toolstest {

namespace {

std::wstring windowsPath(std::wstring path)
{
    std::replace(path.begin(), path.end(), L'/', L'\\');
    return path;
}

std::wstring widen(const char* text)
{
    std::wstring out;
    for (const char* p = text; *p; ++p)
        out += static_cast<wchar_t>(static_cast<unsigned char>(*p));
    return out;
}

std::wstring commandLine(const std::wstring& program, const std::vector<std::wstring>& arguments)
{
    std::wstring line = L"\"" + program + L"\"";
    for (const std::wstring& argument : arguments)
        line += L" \"" + argument + L"\"";
    return line;
}

int CALLBACK countRecord(HDC, HANDLETABLE*, const ENHMETARECORD* record, int, LPARAM counts)
{
    ++(*reinterpret_cast<std::map<DWORD, int>*>(counts))[record->iType];
    return 1;
}

}  // namespace

std::filesystem::path freshFolder(const wchar_t* name)
{
    const std::filesystem::path folder = std::filesystem::path(windowsPath(widen(ZEM_BUILD_DIR))) / L"Tests" / name;
    std::error_code ignored;
    std::filesystem::remove_all(folder, ignored);
    std::filesystem::create_directories(folder);
    return folder;
}

std::filesystem::path slides() { return std::filesystem::path(windowsPath(widen(ZEM_TESTDATA_DIR))) / L"slides"; }

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
    std::wstring line = commandLine(windowsPath(widen(program)), arguments);
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

int Metafile::count(DWORD type) const
{
    const auto found = counts.find(type);
    return found == counts.end() ? 0 : found->second;
}

int Metafile::total() const
{
    int sum = 0;
    for (const auto& entry : counts)
        sum += entry.second;
    return sum;
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
    std::error_code failed;
    out.fileBytes = static_cast<long long>(std::filesystem::file_size(file, failed));
    return out;
}

bool pngSize(const std::filesystem::path& file, int& width, int& height)
{
    static const unsigned char kSignature[8] = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};
    const std::vector<unsigned char> bytes = readBytes(file);
    if (bytes.size() < 33 || !std::equal(kSignature, kSignature + 8, bytes.begin()))
        return false;
    const auto word = [&bytes](size_t at) {
        return static_cast<unsigned>(bytes[at]) << 24 | bytes[at + 1] << 16 | bytes[at + 2] << 8 | bytes[at + 3];
    };
    if (word(8) != 13 || std::string(bytes.begin() + 12, bytes.begin() + 16) != "IHDR")
        return false;
    width = static_cast<int>(word(16));
    height = static_cast<int>(word(20));
    return true;
}

int Picture::inked(int x0, int y0, int x1, int y1) const
{
    int n = 0;
    for (int y = std::max(0, y0); y <= std::min(height - 1, y1); ++y) {
        for (int x = std::max(0, x0); x <= std::min(width - 1, x1); ++x)
            n += at(x, y) != 0xFFFFFF;
    }
    return n;
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

bool writeBytes(const std::filesystem::path& file, const unsigned char* bytes, size_t count)
{
    std::ofstream out(file, std::ios::binary);
    out.write(reinterpret_cast<const char*>(bytes), static_cast<std::streamsize>(count));
    return static_cast<bool>(out);
}

}  // namespace toolstest
