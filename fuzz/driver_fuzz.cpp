// A host's session becomes a document set in memory; whatever the session is, nothing may crash,
// leak or run away, and nothing but the driver's own exception may come out.

#include <algorithm>
#include <string_view>

#include "foundation/ascii.h"
#include "foundation/utf8.h"
#include "support/byte_source.h"
#include "support/call_lines.h"
#include "support/line_mutator.h"
#include "support/navigator_files.h"
#include "support/require.h"
#include "support/session.h"

namespace quillmark::fuzzing {
namespace {

std::string_view textOf(const std::uint8_t* data, std::size_t size) {
    return {reinterpret_cast<const char*>(data), size};
}

/// The files of data of every document with a navigator.
void checkNavigators(const MemoryFileSystem& files) {
    constexpr std::string_view set = "_nav\\set.js";
    for (const std::string& name : files.fileNames()) {
        if (name.ends_with(set)) {
            const NavigatorFiles written(files, name.substr(0, name.size() - set.size() + 5));
            written.checkAll();
        }
    }
}

/// Whether all of the session's documents are in UTF-8: it asks for that first, and never again.
bool isInUtf8(std::string_view session) {
    constexpr std::string_view start = "set\tHtml.CharSet\tUTF-8\n";
    constexpr std::string_view name = "charset";
    const std::string_view rest = session.substr(std::min(start.size(), session.size()));
    const auto again =
        std::search(rest.begin(), rest.end(), name.begin(), name.end(),
                    [](char a, char b) { return ascii::toLower(a) == ascii::toLower(b); });
    return session.starts_with(start) && again == rest.end();
}

/// The driver's own pages have whole characters. A session may bring files with any bytes.
void checkCharacters(const MemoryFileSystem& files) {
    constexpr std::string_view head = "CONTENT=\"text/html; charset=utf-8\">\n";
    for (const std::string& name : files.fileNames()) {
        const std::string bytes = files.content(name).value_or("");
        utf8::Check check;
        if (bytes.starts_with("<!DOCTYPE") && bytes.find(head) != std::string::npos) {
            require(check.take(bytes) && check.isComplete(), "a page has whole characters");
        }
    }
}

}  // namespace
}  // namespace quillmark::fuzzing

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t room);

/// Every second change is one of whole lines.
extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size,
                                               std::size_t room, unsigned seed) {
    using namespace quillmark::fuzzing;
    if (seed % 2 == 0) {
        return LLVMFuzzerMutate(data, size, room);
    }
    LineMutator lines(textOf(data, size), seed);
    lines.change(madeCallLine);
    return lines.write(data, room);
}

extern "C" std::size_t LLVMFuzzerCustomCrossOver(const std::uint8_t* data, std::size_t size,
                                                 const std::uint8_t* other, std::size_t otherSize,
                                                 std::uint8_t* out, std::size_t room,
                                                 unsigned seed) {
    using namespace quillmark::fuzzing;
    LineMutator lines(textOf(data, size), seed);
    lines.insertFrom(textOf(other, otherSize));
    return lines.write(out, room);
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace quillmark::fuzzing;
    Session session;
    session.play(textOf(data, size));
    session.finish();
    checkNavigators(session.files());
    if (isInUtf8(textOf(data, size))) {
        checkCharacters(session.files());
    }
    require(session.files().openFiles() == 0, "every file is closed");
    return 0;
}
