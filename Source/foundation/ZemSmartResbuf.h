#pragma once

#include "ZemObj.h"
#include "ZemResbuf.h"

namespace ZEM {

// Owner of a result chain: frees it when it dies. Copies are deep.
class CSmartResbuf : public CZemObj {
public:
    explicit CSmartResbuf(resbuf* chain = nullptr) : m_chain(chain) {}
    CSmartResbuf(const CSmartResbuf& other);
    CSmartResbuf& operator=(const CSmartResbuf& other);
    ~CSmartResbuf() override;

    // Takes chain over and links it behind the last node.
    CSmartResbuf& append(resbuf* chain);
    // Gives the chain up to the caller, who frees it; the owner is then empty.
    resbuf* release();

    operator resbuf*() const { return m_chain; }

private:
    resbuf* m_chain;
};

}  // namespace ZEM
