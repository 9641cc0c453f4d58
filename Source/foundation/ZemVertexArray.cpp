#include "ZemVertexArray.h"

CZemVertexArray::CZemVertexArray(const CZemVertex& vertex) { append(vertex); }

CZemVertexArray& CZemVertexArray::append(const CZemVertex& vertex) {
    appendItem(vertex);
    return *this;
}

CZemVertexArray& CZemVertexArray::operator+=(const CZemVertexArray& other) {
    const CZemVertexArray copy(other);  // other may be this very list
    for (int k = 0; k < copy.len(); ++k) appendItem(copy[k]);
    return *this;
}

CZemVertexArray& CZemVertexArray::setNormal(const CZemVector3d& normal) {
    m_normal = normal;
    return *this;
}
