// A host's session becomes a document set in memory; whatever the session is, nothing may crash,
// leak or run away, and nothing but the driver's own exception may come out.

#include <string_view>

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
    require(session.files().openFiles() == 0, "every file is closed");
    return 0;
}
