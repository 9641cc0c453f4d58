#include "ZemResbufRead.h"

#include <climits>
#include <cmath>

namespace {

using namespace ZEM;

bool isCode(const resbuf* rb, short code) { return rb && rb->restype == code; }

// Reads the elements of a list with one reader each, up to its RTLE. The
// reader gets the position and must move it on or fail.
template <class ReadOne>
bool readList(const resbuf*& rb, ReadOne readOne) {
    const resbuf* p = rb;
    if (!isCode(p, RTLB)) return false;
    p = p->rbnext;
    while (p && p->restype != RTLE) {
        if (!readOne(p)) return false;
    }
    if (!p) return false;
    rb = p->rbnext;
    return true;
}

bool readVertex(const resbuf*& rb, CZemVertex& out) {
    CZemPoint3d start;
    CZemPoint3d end;
    double bulge = 0.0;
    int field = 0;
    const bool ok = readList(rb, [&](const resbuf*& p) {
        switch (field++) {
        case 0:
            return rbRead(p, start);
        case 1:
            return rbRead(p, end);
        case 2:
            return rbRead(p, bulge);
        default:
            return false;
        }
    });
    if (!ok || field != 3) return false;
    out.set(start, end, bulge);
    return true;
}

bool readPolyline(const resbuf*& rb, CZemVertexArray& out) {
    CZemVertexArray polyline;
    if (isCode(rb, RTNIL)) {
        rb = rb->rbnext;
        out = polyline;
        return true;
    }
    bool haveNormal = false;
    const bool ok = readList(rb, [&](const resbuf*& p) {
        if (!haveNormal) {
            CZemPoint3d normal;
            if (!rbRead(p, normal)) return false;
            polyline.setNormal(normal.asVector());
            haveNormal = true;
            return true;
        }
        CZemVertex vertex;
        if (!readVertex(p, vertex)) return false;
        polyline.append(vertex);
        return true;
    });
    if (!ok || !haveNormal) return false;
    out = polyline;
    return true;
}

template <class T, class ReadElement>
bool readArray(const resbuf*& rb, T& out, ReadElement readElement) {
    T values;
    if (isCode(rb, RTNIL)) {
        rb = rb->rbnext;
        out = values;
        return true;
    }
    if (!readList(rb, [&](const resbuf*& p) { return readElement(p, values); })) return false;
    out = values;
    return true;
}

// A list whose elements each read as one Element, appended in order.
template <class Element, class Array>
bool readArrayOf(const resbuf*& rb, Array& out, bool (*readElement)(const resbuf*&, Element&)) {
    return readArray(rb, out, [&](const resbuf*& p, Array& values) {
        Element element;
        if (!readElement(p, element)) return false;
        values.append(element);
        return true;
    });
}

bool readRegion(const resbuf*& rb, CZemArrayTempl<CZemVertexArray>& out) {
    return readArrayOf<CZemVertexArray>(rb, out, readPolyline);
}

// A whole number in the range of int; the position stays on failure.
bool readInt(const resbuf*& rb, int& out) {
    long long x = 0;
    const resbuf* p = rb;
    if (!rbRead(p, x) || x < INT_MIN || x > INT_MAX) return false;
    rb = p;
    out = static_cast<int>(x);
    return true;
}

}  // namespace

namespace ZEM {

bool rbRead(const resbuf*& rb, double& out) {
    if (!rb) return false;
    switch (rb->restype) {
    case RTREAL:
    case RTANG:
        out = rb->resval.rreal;
        break;
    case RTSHORT:
        out = rb->resval.rint;
        break;
    case RTLONG:
        out = rb->resval.rlong;
        break;
    default:
        return false;
    }
    rb = rb->rbnext;
    return true;
}

bool rbRead(const resbuf*& rb, long long& out) {
    if (!rb) return false;
    switch (rb->restype) {
    case RTSHORT:
        out = rb->resval.rint;
        break;
    case RTLONG:
        out = rb->resval.rlong;
        break;
    case RTREAL: {
        const double x = rb->resval.rreal;
        // Whole reals beyond 2^62 are not kept as numbers of this kind.
        if (!std::isfinite(x) || x != std::floor(x) || std::fabs(x) > 4.6e18) return false;
        out = static_cast<long long>(x);
        break;
    }
    default:
        return false;
    }
    rb = rb->rbnext;
    return true;
}

bool rbRead(const resbuf*& rb, CZemPoint3d& out) {
    if (!rb || (rb->restype != RT3DPOINT && rb->restype != RTPOINT)) return false;
    const double* p = rb->resval.rpoint;
    out.set(p[0], p[1], rb->restype == RT3DPOINT ? p[2] : 0.0);
    rb = rb->rbnext;
    return true;
}

bool rbRead(const resbuf*& rb, CZemString& out) {
    if (!rb || !rbIsString(rb->restype)) return false;
    out = rb->resval.rstring;
    rb = rb->rbnext;
    return true;
}

bool rbRead(const resbuf*& rb, CZemVertexArray& out) { return readPolyline(rb, out); }

bool rbRead(const resbuf*& rb, CZemArrayTempl<int>& out) { return readArrayOf<int>(rb, out, readInt); }

bool rbRead(const resbuf*& rb, CZemArrayTempl<CZemString>& out) { return readArrayOf<CZemString>(rb, out, rbRead); }

bool rbRead(const resbuf*& rb, CZemPoint3dArray& out) { return readArrayOf<CZemPoint3d>(rb, out, rbRead); }

bool rbRead(const resbuf*& rb, RegionLists& out) {
    return readArrayOf<CZemArrayTempl<CZemVertexArray>>(rb, out, readRegion);
}

bool rbReadMatrix(const resbuf*& rb, double (*out)[4]) {
    if (!out) return false;
    double cells[4][4];
    int row = 0;
    const bool ok = readList(rb, [&](const resbuf*& p) {
        if (row >= 4) return false;
        int col = 0;
        const bool rowOk = readList(p, [&](const resbuf*& q) { return col < 4 && rbRead(q, cells[row][col++]); });
        ++row;
        return rowOk && col == 4;
    });
    if (!ok || row != 4) return false;
    for (int r = 0; r < 4; ++r)
        for (int c = 0; c < 4; ++c) out[r][c] = cells[r][c];
    return true;
}

CZemVertexArray& fromRb(CZemVertexArray& out, resbuf*& rb) {
    const resbuf* p = rb;
    if (!readPolyline(p, out)) {
        out = CZemVertexArray();
        p = rbSkip(p);
    }
    rb = const_cast<resbuf*>(p);
    return out;
}

RegionLists& fromRb(RegionLists& out, resbuf*& rb, int append) {
    const resbuf* p = rb;
    RegionLists regions;
    const bool read = rbRead(p, regions);
    if (!append) out.setLogicalLength(0);
    if (read) {
        for (int k = 0; k < regions.len(); ++k) out.append(regions[k]);
    } else {
        p = rbSkip(p);
    }
    rb = const_cast<resbuf*>(p);
    return out;
}

}  // namespace ZEM
