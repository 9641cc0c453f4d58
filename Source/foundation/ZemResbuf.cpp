#include "ZemResbuf.h"

#include <cmath>
#include <cstring>
#include <cwchar>

namespace {

using ZEM::rbNew;

// Appends nodes at the end of a chain under construction.
class ChainBuilder {
public:
    void add(resbuf* node) {
        if (!node) return;
        *m_tail = node;
        while (node->rbnext) node = node->rbnext;
        m_tail = &node->rbnext;
    }
    void add(short code) { add(rbNew(code)); }
    resbuf* take() {
        resbuf* head = m_head;
        m_head = nullptr;
        m_tail = &m_head;
        return head;
    }

private:
    resbuf* m_head = nullptr;
    resbuf** m_tail = &m_head;
};

resbuf* pointNode(double x, double y, double z) {
    resbuf* node = rbNew(ZEM::RT3DPOINT);
    node->resval.rpoint[0] = x;
    node->resval.rpoint[1] = y;
    node->resval.rpoint[2] = z;
    return node;
}

resbuf* realNode(double value) {
    resbuf* node = rbNew(ZEM::RTREAL);
    node->resval.rreal = value;
    return node;
}

resbuf* intNode(long long value) {
    if (value >= -32768 && value <= 32767) {
        resbuf* node = rbNew(ZEM::RTSHORT);
        node->resval.rint = static_cast<short>(value);
        return node;
    }
    resbuf* node = rbNew(ZEM::RTLONG);
    node->resval.rlong = static_cast<int>(value);
    return node;
}

wchar_t* copyText(const wchar_t* text) {
    if (!text) text = L"";
    const std::size_t n = std::wcslen(text);
    wchar_t* copy = new wchar_t[n + 1];
    std::wmemcpy(copy, text, n + 1);
    return copy;
}

void addPolyline(ChainBuilder& chain, const CZemVertexArray& polyline) {
    if (polyline.isEmpty()) {
        chain.add(ZEM::RTNIL);
        return;
    }
    chain.add(ZEM::RTLB);
    const CZemVector3d& n = polyline.normal();
    chain.add(pointNode(n.x, n.y, n.z));
    for (int k = 0; k < polyline.len(); ++k) {
        const CZemVertex& v = polyline[k];
        chain.add(ZEM::RTLB);
        chain.add(pointNode(v.m_start.x, v.m_start.y, v.m_start.z));
        chain.add(pointNode(v.m_end.x, v.m_end.y, v.m_end.z));
        chain.add(realNode(v.m_bulge));
        chain.add(ZEM::RTLE);
    }
    chain.add(ZEM::RTLE);
}

// Reals are the same if their bits are, or if both are NaN.
bool sameReal(double x, double y) {
    return (std::isnan(x) && std::isnan(y)) || std::memcmp(&x, &y, sizeof(double)) == 0;
}

bool sameValue(const resbuf* a, const resbuf* b) {
    switch (a->restype) {
    case ZEM::RTREAL:
    case ZEM::RTANG:
        return sameReal(a->resval.rreal, b->resval.rreal);
    case ZEM::RTPOINT:
    case ZEM::RT3DPOINT:
        for (int k = 0; k < (a->restype == ZEM::RTPOINT ? 2 : 3); ++k) {
            if (!sameReal(a->resval.rpoint[k], b->resval.rpoint[k])) return false;
        }
        return true;
    case ZEM::RTSHORT:
        return a->resval.rint == b->resval.rint;
    case ZEM::RTLONG:
        return a->resval.rlong == b->resval.rlong;
    case ZEM::RTSTR:
    case ZEM::RTDXF0:
        return std::wcscmp(a->resval.rstring ? a->resval.rstring : L"",
                           b->resval.rstring ? b->resval.rstring : L"") == 0;
    default:
        return true;
    }
}

}  // namespace

int zemRelRb(resbuf* rb) {
    while (rb) {
        resbuf* next = rb->rbnext;
        if (ZEM::rbIsString(rb->restype)) delete[] rb->resval.rstring;
        delete rb;
        rb = next;
    }
    return ZEM::RTNORM;
}

namespace ZEM {

resbuf* rbNew(short code) {
    resbuf* node = new resbuf;
    std::memset(static_cast<void*>(node), 0, sizeof(resbuf));
    node->restype = code;
    return node;
}

bool rbIsString(short code) { return code == RTSTR || code == RTDXF0; }

resbuf* mkResbuf(double value, short code) {
    switch (code) {
    case RTREAL:
    case RTANG: {
        resbuf* node = rbNew(code);
        node->resval.rreal = value;
        return node;
    }
    case RTSHORT:
    case RTLONG: {
        const double low = code == RTSHORT ? -32768.0 : -2147483648.0;
        const double high = code == RTSHORT ? 32767.0 : 2147483647.0;
        const double r = std::isnan(value) ? 0.0 : std::round(value);
        const double clamped = r < low ? low : (r > high ? high : r);
        resbuf* node = rbNew(code);
        if (code == RTSHORT) {
            node->resval.rint = static_cast<short>(clamped);
        } else {
            node->resval.rlong = static_cast<int>(clamped);
        }
        return node;
    }
    case RTNIL:
    case RTT:
    case RTLB:
    case RTLE:
    case RTDOTE:
        return rbNew(code);
    default:
        return nullptr;
    }
}

resbuf* mkResbuf(int value, short code) { return mkResbuf(static_cast<double>(value), code); }

resbuf* mkResbuf(const wchar_t* text, short code) {
    if (!rbIsString(code)) return nullptr;
    resbuf* node = rbNew(code);
    node->resval.rstring = copyText(text);
    return node;
}

resbuf* mkResbuf(const CZemPoint3d& point) { return pointNode(point.x, point.y, point.z); }

resbuf* mkResbuf(const CZemVector3d& vector) { return pointNode(vector.x, vector.y, vector.z); }

resbuf* mkResbuf(const CZemVertexArray& polyline) {
    ChainBuilder chain;
    addPolyline(chain, polyline);
    return chain.take();
}

resbuf* mkResbuf(const CZemArrayTempl<int>& values) {
    if (values.isEmpty()) return rbNew(RTNIL);
    ChainBuilder chain;
    chain.add(RTLB);
    for (int k = 0; k < values.len(); ++k) chain.add(intNode(values[k]));
    chain.add(RTLE);
    return chain.take();
}

resbuf* mkResbuf(const CZemArrayTempl<CZemString>& texts) {
    if (texts.isEmpty()) return rbNew(RTNIL);
    ChainBuilder chain;
    chain.add(RTLB);
    for (int k = 0; k < texts.len(); ++k) chain.add(mkResbuf(static_cast<const wchar_t*>(texts[k])));
    chain.add(RTLE);
    return chain.take();
}

resbuf* mkResbuf(const CZemPoint3dArray& points) {
    if (points.isEmpty()) return rbNew(RTNIL);
    ChainBuilder chain;
    chain.add(RTLB);
    for (int k = 0; k < points.len(); ++k) chain.add(mkResbuf(points[k]));
    chain.add(RTLE);
    return chain.take();
}

resbuf* mkResbuf(const double (*matrix)[4]) {
    if (!matrix) return nullptr;
    ChainBuilder chain;
    chain.add(RTLB);
    for (int row = 0; row < 4; ++row) {
        chain.add(RTLB);
        for (int col = 0; col < 4; ++col) chain.add(realNode(matrix[row][col]));
        chain.add(RTLE);
    }
    chain.add(RTLE);
    return chain.take();
}

resbuf* mkResbuf(const RegionLists& regions) {
    if (regions.isEmpty()) return rbNew(RTNIL);
    ChainBuilder chain;
    chain.add(RTLB);
    for (int r = 0; r < regions.len(); ++r) {
        const CZemArrayTempl<CZemVertexArray>& region = regions[r];
        if (region.isEmpty()) {
            chain.add(RTNIL);
            continue;
        }
        chain.add(RTLB);
        for (int c = 0; c < region.len(); ++c) addPolyline(chain, region[c]);
        chain.add(RTLE);
    }
    chain.add(RTLE);
    return chain.take();
}

resbuf* rbToList(resbuf* chain) {
    ChainBuilder list;
    list.add(RTLB);
    if (chain) list.add(chain);
    list.add(RTLE);
    return list.take();
}

resbuf* rbCopy(const resbuf* chain, const resbuf* end) {
    ChainBuilder copy;
    for (; chain && chain != end; chain = chain->rbnext) {
        resbuf* node = rbNew(chain->restype);
        node->resval = chain->resval;
        if (rbIsString(chain->restype)) node->resval.rstring = copyText(chain->resval.rstring);
        copy.add(node);
    }
    return copy.take();
}

bool rbEqual(const resbuf* a, const resbuf* b) {
    for (; a && b; a = a->rbnext, b = b->rbnext) {
        if (a->restype != b->restype || !sameValue(a, b)) return false;
    }
    return !a && !b;
}

const resbuf* rbSkip(const resbuf* rb) {
    if (!rb) return nullptr;
    if (rb->restype != RTLB) return rb->rbnext;
    long depth = 0;
    for (; rb; rb = rb->rbnext) {
        if (rb->restype == RTLB) ++depth;
        if (rb->restype == RTLE && --depth == 0) return rb->rbnext;
    }
    return nullptr;
}

}  // namespace ZEM
