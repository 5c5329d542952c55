#include "replay/tool/lazy_file.h"

#include <cerrno>
#include <system_error>

namespace quillmark::replay {

bool LazyFile::write(std::string_view text) {
    errno = 0;
    if (!file_.is_open() && !reported_) {
        std::error_code failure;
        std::filesystem::create_directories(name_.parent_path(), failure);
        file_.open(name_, std::ios::binary | std::ios::trunc);
    }
    file_ << text << std::flush;
    reason_ = errno;
    const bool failsNow = !file_ && !reported_;
    reported_ = reported_ || failsNow;
    return !failsNow;
}

bool LazyFile::close() {
    if (reported_ || !file_.is_open()) {
        return true;
    }
    errno = 0;
    file_.close();
    reason_ = errno;
    return !file_.fail();
}

std::string LazyFile::reason() const {
    return reason_ == 0 ? std::string() : std::generic_category().message(reason_);
}

}  // namespace quillmark::replay
