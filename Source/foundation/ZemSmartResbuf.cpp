#include "ZemSmartResbuf.h"

namespace ZEM {

CSmartResbuf::CSmartResbuf(const CSmartResbuf& other) : CZemObj(), m_chain(rbCopy(other.m_chain)) {}

CSmartResbuf& CSmartResbuf::operator=(const CSmartResbuf& other) {
    if (this != &other) {
        resbuf* copy = rbCopy(other.m_chain);
        zemRelRb(m_chain);
        m_chain = copy;
    }
    return *this;
}

CSmartResbuf::~CSmartResbuf() { zemRelRb(m_chain); }

CSmartResbuf& CSmartResbuf::append(resbuf* chain) {
    if (!chain || chain == m_chain) return *this;
    if (!m_chain) {
        m_chain = chain;
        return *this;
    }
    resbuf* last = m_chain;
    while (last->rbnext) last = last->rbnext;
    last->rbnext = chain;
    return *this;
}

resbuf* CSmartResbuf::release() {
    resbuf* chain = m_chain;
    m_chain = nullptr;
    return chain;
}

}  // namespace ZEM
