#include "ZemDataFile.h"

#include "ZemDataFileReader.h"
#include "ZemDataFileWriter.h"
#include "ZemDataItem.h"
#include "ZemFileSystem.h"
#include "ZemTextUtil.h"
#include "ZemUtf8.h"

#include <fstream>
#include <string>
#include <system_error>

namespace {

// Larger files are refused rather than read into memory.
constexpr std::size_t kMaxFileBytes = std::size_t(256) << 20;

}  // namespace

CZemDataFile::CZemDataFile(const wchar_t* path) : m_path(path) {}

CZemString CZemDataFile::temporaryPath() const { return m_path + L".tmp"; }

bool CZemDataFile::load(std::unique_ptr<CZemDataItem>& root) const {
    std::string bytes;
    if (!ZEM::fsReadAll(m_path, bytes, kMaxFileBytes)) return false;
    CZemDataFileReader reader(m_path);
    return reader.parse(bytes, root);
}

bool CZemDataFile::save(const CZemDataItem* root) const { return writeTemporary(root) && commitTemporary(); }

bool CZemDataFile::writeTemporary(const CZemDataItem* root) const {
    std::string text;
    CZemDataFileWriter writer;
    if (m_path.isEmpty() || !writer.format(root, text)) return false;
    const CZemString temporary = temporaryPath();
    std::ofstream out(ZEM::fsPath(temporary), std::ios::binary | std::ios::trunc);
    if (out) {
        out.write(text.data(), static_cast<std::streamsize>(text.size()));
        out.close();
    }
    if (!out) {
        ZEM::dump(L"%s: cannot write the file; the previous file stays\n", static_cast<const wchar_t*>(temporary));
        std::error_code ignored;
        std::filesystem::remove(ZEM::fsPath(temporary), ignored);
        return false;
    }
    return true;
}

bool CZemDataFile::commitTemporary() const {
    const CZemString temporary = temporaryPath();
    std::error_code error;
    std::filesystem::rename(ZEM::fsPath(temporary), ZEM::fsPath(m_path), error);
    if (error) {
        const std::string reason = error.message();
        ZEM::dump(L"%s: cannot replace the file (%s); the previous file stays\n", static_cast<const wchar_t*>(m_path),
                  ZEM::utf8Decode(reason.data(), reason.size()).c_str());
        return false;
    }
    return true;
}
