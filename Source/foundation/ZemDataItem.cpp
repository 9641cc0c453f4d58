#include "ZemDataItem.h"

#include "ZemDataDir.h"
#include "ZemResbuf.h"
#include "ZemResbufRead.h"

#include <climits>
#include <limits>

namespace {

// Nesting of directories that setLisp still reads as directories; deeper
// lists stay values, so a hostile chain cannot exhaust the stack.
constexpr int kMaxLispDepth = 200;

bool isKeyCode(short code) {
    return code == ZEM::RTSTR || code == ZEM::RTDXF0 || code == ZEM::RTSHORT || code == ZEM::RTLONG;
}

resbuf* keyNode(const CZemDataKey& key) {
    if (key.type() == ZEM::RTSTR || key.type() == ZEM::RTDXF0) return ZEM::mkResbuf(key.levelText(0), key.type());
    resbuf* node = ZEM::rbNew(key.type());
    if (key.type() == ZEM::RTSHORT) {
        node->resval.rint = static_cast<short>(key.levelNumber(0));
    } else {
        node->resval.rlong = static_cast<int>(key.levelNumber(0));
    }
    return node;
}

CZemDataKey keyOfNode(const resbuf* node) {
    CZemDataKey key;
    if (ZEM::rbIsString(node->restype)) return key.appendString(node->resval.rstring, node->restype);
    return key.appendNumber(node->restype == ZEM::RTSHORT ? node->resval.rint : node->resval.rlong);
}

bool parseDirectory(const resbuf* chain, CZemDataItem& out, int depth);

// One child from a value chain: a directory if the chain has that form.
CZemDataItem* childFromChain(resbuf* chain, int depth) {
    CZemDataItem* child = new CZemDataItem();
    if (!parseDirectory(chain, *child, depth + 1)) {
        child->setData(chain, false);
        return child;
    }
    zemRelRb(chain);
    return child;
}

// Reads ((key value...) ...) as a whole chain into out; false, with out
// unchanged, if the chain has another form.
bool parseDirectory(const resbuf* chain, CZemDataItem& out, int depth) {
    if (depth > kMaxLispDepth || !chain || chain->restype != ZEM::RTLB) return false;
    CZemDataItem dir(CZemDataItem::typeDir);
    const resbuf* p = chain->rbnext;
    while (p && p->restype == ZEM::RTLB) {
        const resbuf* keyAt = p->rbnext;
        if (!keyAt || !isKeyCode(keyAt->restype)) return false;
        const resbuf* end = keyAt->rbnext;
        while (end && end->restype != ZEM::RTLE) end = ZEM::rbSkip(end);
        if (!end) return false;
        const CZemDataKey key = keyOfNode(keyAt);
        if (dir.get(&key)) return false;
        dir.getDir()->insert(&key, childFromChain(ZEM::rbCopy(keyAt->rbnext, end), depth), 0);
        p = end->rbnext;
    }
    if (!p || p->restype != ZEM::RTLE || p->rbnext) return false;
    out = dir;
    return true;
}

bool sameKey(const CZemDataKey& a, const CZemDataKey& b) {
    return a.type() == b.type() && a.levelNumber(-1) == b.levelNumber(-1) &&
           CZemString(a.levelText(-1)) == b.levelText(-1);
}

}  // namespace

CZemDataItem::CZemDataItem(type kind) {
    if (kind == typeDir) m_dir = new CZemDataDir();
}

CZemDataItem::CZemDataItem(const CZemDataItem& other) : CZemObj(), m_key(other.m_key) { *this = other; }

CZemDataItem& CZemDataItem::operator=(const CZemDataItem& other) {
    if (this == &other) return *this;
    resbuf* value = ZEM::rbCopy(other.m_value);
    CZemDataDir* dir = other.m_dir ? new CZemDataDir(*other.m_dir) : nullptr;
    clear();
    m_value = value;
    m_dir = dir;
    return *this;
}

CZemDataItem::~CZemDataItem() { clear(); }

void CZemDataItem::clear() {
    zemRelRb(m_value);
    m_value = nullptr;
    delete m_dir;
    m_dir = nullptr;
}

template <class T>
bool CZemDataItem::readAs(T& out, const CZemDataKey* key) const {
    const CZemDataItem* node = get(key);
    if (!node || node->isDir()) return false;
    const resbuf* rb = node->m_value;
    T value;
    if (!ZEM::rbRead(rb, value)) return false;
    out = value;
    return true;
}

bool CZemDataItem::get(int& out, const CZemDataKey* key) const {
    long long value = 0;
    if (!readAs(value, key) || value < INT_MIN || value > INT_MAX) return false;
    out = static_cast<int>(value);
    return true;
}

bool CZemDataItem::get(unsigned long& out, const CZemDataKey* key) const {
    long long value = 0;
    if (!readAs(value, key) || value < 0) return false;
    if (static_cast<unsigned long long>(value) > std::numeric_limits<unsigned long>::max()) return false;
    out = static_cast<unsigned long>(value);
    return true;
}

bool CZemDataItem::get(double& out, const CZemDataKey* key) const { return readAs(out, key); }

bool CZemDataItem::get(bool& out, const CZemDataKey* key) const {
    const CZemDataItem* node = get(key);
    if (!node || !node->m_value) return false;
    const short code = node->m_value->restype;
    if (code == ZEM::RTT || code == ZEM::RTNIL) {
        out = code == ZEM::RTT;
        return true;
    }
    long long value = 0;
    if (!readAs(value, key)) return false;
    out = value != 0;
    return true;
}

bool CZemDataItem::get(CZemString& out, const CZemDataKey* key) const { return readAs(out, key); }

bool CZemDataItem::get(CZemPoint3d& out, const CZemDataKey* key) const { return readAs(out, key); }

bool CZemDataItem::get(CZemVector3d& out, const CZemDataKey* key) const {
    CZemPoint3d point;
    if (!readAs(point, key)) return false;
    out = point.asVector();
    return true;
}

bool CZemDataItem::get(CZemVertexArray& out, const CZemDataKey* key) const { return readAs(out, key); }

bool CZemDataItem::get(CZemPoint3dArray& out, const CZemDataKey* key) const { return readAs(out, key); }

bool CZemDataItem::get(CZemArrayTempl<int>& out, const CZemDataKey* key) const { return readAs(out, key); }

bool CZemDataItem::get(CZemArrayTempl<CZemString>& out, const CZemDataKey* key) const {
    return readAs(out, key);
}

CZemDataItem* CZemDataItem::get(const CZemDataKey* key) {
    return const_cast<CZemDataItem*>(static_cast<const CZemDataItem*>(this)->get(key));
}

const CZemDataItem* CZemDataItem::get(const CZemDataKey* key) const {
    if (!key || (key->isEmpty() && key->isValid())) return this;
    return m_dir ? m_dir->find(key) : nullptr;
}

CZemDataDir* CZemDataItem::mkDir() {
    if (m_dir) return m_dir;
    zemRelRb(m_value);
    m_value = nullptr;
    m_dir = new CZemDataDir();
    return m_dir;
}

int CZemDataItem::setData(resbuf* rb, bool copy) {
    resbuf* value = copy ? ZEM::rbCopy(rb) : rb;
    if (value == m_value) return 1;
    clear();
    m_value = value;
    return 1;
}

resbuf* CZemDataItem::mkLisp() const {
    if (!m_dir) return m_value ? ZEM::rbCopy(m_value) : ZEM::rbNew(ZEM::RTNIL);
    resbuf* entries = nullptr;
    resbuf** tail = &entries;
    for (int k = 0; k < m_dir->len(); ++k) {
        const CZemDataItem* child = m_dir->at(k);
        resbuf* entry = keyNode(child->key());
        entry->rbnext = child->mkLisp();
        *tail = ZEM::rbToList(entry);
        while (*tail) tail = &(*tail)->rbnext;
    }
    return ZEM::rbToList(entries);
}

void CZemDataItem::setLisp(const resbuf* chain) {
    if (parseDirectory(chain, *this, 0)) return;
    setData(ZEM::rbCopy(chain), false);
}

bool CZemDataItem::operator==(const CZemDataItem& other) const {
    if (isDir() != other.isDir()) return false;
    if (!isDir()) return ZEM::rbEqual(m_value, other.m_value);
    if (m_dir->len() != other.m_dir->len()) return false;
    for (int k = 0; k < m_dir->len(); ++k) {
        const CZemDataItem* a = m_dir->at(k);
        const CZemDataItem* b = other.m_dir->at(k);
        if (!sameKey(a->key(), b->key()) || *a != *b) return false;
    }
    return true;
}
