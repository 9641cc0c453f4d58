// Feeds arbitrary bytes to the data set file reader. What it accepts must
// write back and read again to an equal tree; the host form of the tree is
// made and read back too.
#include "ZemDataFileReader.h"
#include "ZemDataFileWriter.h"
#include "ZemDataItem.h"
#include "ZemResbuf.h"
#include "ZemTextUtil.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string>

namespace {

void quiet(const wchar_t*) {}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    ZEM::setDumpSink(&quiet);
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    std::unique_ptr<CZemDataItem> root;
    CZemDataFileReader reader(L"fuzz");
    if (!reader.parse(bytes, root)) return 0;

    std::string text;
    CZemDataFileWriter writer;
    if (!writer.format(root.get(), text)) std::abort();
    std::unique_ptr<CZemDataItem> again;
    CZemDataFileReader second(L"fuzz, written");
    if (!second.parse(text, again)) std::abort();
    if (!root != !again || (root && *root != *again)) std::abort();

    if (root) {
        resbuf* lisp = root->mkLisp();
        CZemDataItem fromLisp;
        fromLisp.setLisp(lisp);
        zemRelRb(lisp);
    }
    return 0;
}
