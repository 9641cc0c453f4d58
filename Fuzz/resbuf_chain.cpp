// Builds a result chain node by node from arbitrary bytes and runs every
// reader over it: fromRb must always move on, a copy must equal the chain,
// and a chain that a data set file can hold must come back equal.
#include "ZemDataFileReader.h"
#include "ZemDataFileWriter.h"
#include "ZemDataItem.h"
#include "ZemResbuf.h"
#include "ZemResbufRead.h"
#include "ZemTextUtil.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>

namespace {

void quiet(const wchar_t*) {}

class ByteSource {
public:
    ByteSource(const std::uint8_t* data, std::size_t size) : m_data(data), m_size(size) {}
    bool empty() const { return m_pos >= m_size; }
    std::uint8_t byte() { return m_pos < m_size ? m_data[m_pos++] : 0; }
    void fill(void* out, std::size_t n) {
        std::memset(out, 0, n);
        const std::size_t take = n < m_size - m_pos ? n : m_size - m_pos;
        std::memcpy(out, m_data + m_pos, take);
        m_pos += take;
    }

private:
    const std::uint8_t* m_data;
    std::size_t m_size;
    std::size_t m_pos = 0;
};

const short kCodes[] = {ZEM::RTREAL, ZEM::RTPOINT, ZEM::RTSHORT, ZEM::RTANG, ZEM::RTSTR, ZEM::RT3DPOINT,
                        ZEM::RTLONG, ZEM::RTLB,    ZEM::RTLE,   ZEM::RTDOTE, ZEM::RTNIL, ZEM::RTDXF0,
                        ZEM::RTT,    ZEM::RTLB,    ZEM::RTLE,   1234};

resbuf* nodeFrom(ByteSource& in) {
    const short code = kCodes[in.byte() % (sizeof kCodes / sizeof kCodes[0])];
    if (ZEM::rbIsString(code)) {
        std::wstring text;
        for (std::uint8_t n = in.byte() % 16; n > 0 && !in.empty(); --n) {
            const std::uint8_t c = in.byte();
            text += static_cast<wchar_t>(c ? c : 0x20AC);
        }
        return ZEM::mkResbuf(text.c_str(), code);
    }
    resbuf* node = ZEM::rbNew(code);
    if (code == ZEM::RTREAL || code == ZEM::RTANG) in.fill(&node->resval.rreal, sizeof(double));
    if (code == ZEM::RTPOINT || code == ZEM::RT3DPOINT) in.fill(node->resval.rpoint, sizeof node->resval.rpoint);
    if (code == ZEM::RTSHORT) in.fill(&node->resval.rint, sizeof(short));
    if (code == ZEM::RTLONG) in.fill(&node->resval.rlong, sizeof(int));
    return node;
}

// Reads the chain with a reader from every start until it runs out; each
// call must move on.
template <class Read>
void walk(resbuf* chain, Read read) {
    for (resbuf* at = chain; at;) {
        resbuf* before = at;
        read(at);
        if (at == before) std::abort();
    }
}

void fileRoundTrip(const CZemDataItem& item) {
    std::string text;
    CZemDataFileWriter writer;
    if (!writer.format(&item, text)) return;
    std::unique_ptr<CZemDataItem> back;
    CZemDataFileReader reader(L"fuzz");
    if (!reader.parse(text, back) || !back || *back != item) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    ZEM::setDumpSink(&quiet);
    ByteSource in(data, size);
    resbuf* chain = nullptr;
    resbuf** tail = &chain;
    for (int count = 0; !in.empty() && count < 4096; ++count) {
        *tail = nodeFrom(in);
        tail = &(*tail)->rbnext;
    }

    CZemVertexArray polyline;
    ZEM::RegionLists regions;
    walk(chain, [&](resbuf*& at) { ZEM::fromRb(polyline, at); });
    walk(chain, [&](resbuf*& at) { ZEM::fromRb(regions, at, 0); });

    resbuf* copy = ZEM::rbCopy(chain);
    if (!ZEM::rbEqual(copy, chain)) std::abort();
    CZemDataItem item;
    item.setData(copy, false);
    int i = 0;
    double d = 0;
    bool b = false;
    CZemString s;
    CZemPoint3dArray points;
    CZemArrayTempl<int> ints;
    CZemArrayTempl<CZemString> texts;
    double matrix[4][4];
    item.get(i, nullptr);
    item.get(d, nullptr);
    item.get(b, nullptr);
    item.get(s, nullptr);
    item.get(points, nullptr);
    item.get(ints, nullptr);
    item.get(texts, nullptr);
    const resbuf* p = chain;
    ZEM::rbReadMatrix(p, matrix);
    fileRoundTrip(item);

    CZemDataItem fromLisp;
    fromLisp.setLisp(chain);
    resbuf* lisp = fromLisp.mkLisp();
    zemRelRb(lisp);
    zemRelRb(chain);
    return 0;
}
