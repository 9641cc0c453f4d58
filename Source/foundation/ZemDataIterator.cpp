#include "ZemDataIterator.h"

#include "ZemDataDir.h"
#include "ZemDataItem.h"

CZemDataIterator::CZemDataIterator(const CZemDataItem* dir) : m_dir(dir) {}

bool CZemDataIterator::done() const { return item() == nullptr; }

CZemDataItem* CZemDataIterator::item() const {
    if (!m_dir || !m_dir->isDir()) return nullptr;
    return m_dir->getDir()->at(m_pos);
}
