// zemdemo: writes an enhanced metafile with a few lines and a filled polygon,
// reads it back and prints the file size and the count of each record type.
//
//   zemdemo [output-folder]
#include <windows.h>

#include <cstdio>
#include <map>
#include <string>

namespace {

const wchar_t* recordName(DWORD type) {
    switch (type) {
    case EMR_HEADER: return L"HEADER";
    case EMR_EOF: return L"EOF";
    case EMR_MOVETOEX: return L"MOVETOEX";
    case EMR_LINETO: return L"LINETO";
    case EMR_POLYGON: return L"POLYGON";
    case EMR_POLYGON16: return L"POLYGON16";
    case EMR_CREATEPEN: return L"CREATEPEN";
    case EMR_CREATEBRUSHINDIRECT: return L"CREATEBRUSHINDIRECT";
    case EMR_SELECTOBJECT: return L"SELECTOBJECT";
    case EMR_DELETEOBJECT: return L"DELETEOBJECT";
    default: return L"OTHER";
    }
}

void drawShapes(HDC dc) {
    HPEN pen = CreatePen(PS_SOLID, 2, RGB(0, 0, 160));
    HBRUSH brush = CreateSolidBrush(RGB(200, 60, 60));
    HGDIOBJ oldPen = SelectObject(dc, pen);
    HGDIOBJ oldBrush = SelectObject(dc, brush);
    for (int i = 0; i <= 4; ++i) {
        MoveToEx(dc, 10, 10 + 20 * i, nullptr);
        LineTo(dc, 190, 10 + 20 * i);
    }
    const POINT house[] = {{40, 180}, {160, 180}, {160, 120}, {100, 100}, {40, 120}};
    Polygon(dc, house, 5);
    SelectObject(dc, oldBrush);
    SelectObject(dc, oldPen);
    DeleteObject(brush);
    DeleteObject(pen);
}

int CALLBACK countRecord(HDC, HANDLETABLE*, const ENHMETARECORD* record, int, LPARAM counts) {
    (*reinterpret_cast<std::map<DWORD, int>*>(counts))[record->iType]++;
    return 1;
}

}  // namespace

int wmain(int argc, wchar_t** argv) {
    std::wstring path = argc > 1 ? argv[1] : L".";
    path += L"\\shapes.emf";

    HDC dc = CreateEnhMetaFileW(nullptr, path.c_str(), nullptr, L"zemdemo\0shapes\0");
    if (!dc) {
        fwprintf(stderr, L"zemdemo: cannot create %ls\n", path.c_str());
        return 1;
    }
    drawShapes(dc);
    HENHMETAFILE emf = CloseEnhMetaFile(dc);
    DeleteEnhMetaFile(emf);

    emf = GetEnhMetaFileW(path.c_str());
    if (!emf) {
        fwprintf(stderr, L"zemdemo: cannot read back %ls\n", path.c_str());
        return 1;
    }
    std::map<DWORD, int> counts;
    EnumEnhMetaFile(nullptr, emf, countRecord, &counts, nullptr);
    const UINT bytes = GetEnhMetaFileBits(emf, 0, nullptr);
    DeleteEnhMetaFile(emf);

    wprintf(L"%ls: %u bytes\n", path.c_str(), bytes);
    for (const auto& [type, count] : counts) wprintf(L"  %-20ls %3d  (type %lu)\n", recordName(type), count, type);
    return 0;
}
