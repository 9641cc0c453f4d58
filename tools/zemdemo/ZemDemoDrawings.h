#pragma once

#include <string>
#include <vector>

class CZemGDX;

// What the demo's drawings are made from: the output folder (which also
// receives the title block's picture) and, optionally, a slide of a library.
struct ZemDemoInputs {
    std::wstring folder;
    std::wstring slideLibrary;
    std::wstring slideName;
};

// One drawing of the demo: its file name without ending, its size in pixels,
// whether it needs the slide, and how its list is filled. build returns
// false with the reason in error.
struct ZemDemoDrawing {
    const wchar_t* name;
    int width;
    int height;
    bool needsSlide;
    bool (*build)(CZemGDX& gdx, const ZemDemoDrawing& drawing, const ZemDemoInputs& inputs, std::wstring& error);
};

// The demo's drawings in the order they are written.
const std::vector<ZemDemoDrawing>& zem_demo_drawings();
