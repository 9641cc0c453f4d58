#include "ZemRegFill.h"

#include "ZemDeviceLines.h"
#include "ZemRegScan.h"

void regFillLines(CDC& dc, const CZemArrayTempl<CZemVertexArray>& regl) {
    const CZemArrayTempl<CZemVertexArray> lines = regScanLines(regl);
    for (int k = 0; k < lines.len(); ++k) {
        const CZemVertexArray& piece = lines[k];
        for (int v = 0; v < piece.len(); ++v) zem_dc_vertex_lines(dc, piece[v]);
    }
}
