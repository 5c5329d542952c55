#include "platform/files/posix/open_files.h"

#include "platform/files/posix/descriptor_io.h"
#include "platform/files/posix/noted.h"

namespace quillmark {

std::size_t OpenInputFile::read(std::span<char> buffer) {
    const long taken = descriptor_io::readSome(file_, buffer);
    failed_ = !noted(taken >= 0) || failed_;
    return taken > 0 ? static_cast<std::size_t>(taken) : 0;
}

bool OpenOutputFile::write(std::span<const std::string_view> pieces) {
    return noted(descriptor_io::writeAll(file_, pieces));
}

bool OpenOutputFile::close() {
    return noted(file_.close());
}

bool WholeOutputFile::write(std::span<const std::string_view> pieces) {
    failed_ = !noted(descriptor_io::writeAll(file_.descriptor(), pieces)) || failed_;
    return !failed_;
}

bool WholeOutputFile::close() {
    if (failed_) {
        file_ = WholeFile();
    }
    return !failed_ && file_.commit();
}

}  // namespace quillmark
