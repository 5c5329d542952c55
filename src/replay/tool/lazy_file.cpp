#include "replay/tool/lazy_file.h"

#include <system_error>

namespace quillmark::replay {

bool LazyFile::write(std::string_view text) {
    if (!file_.is_open() && !reported_) {
        std::error_code failure;
        std::filesystem::create_directories(name_.parent_path(), failure);
        file_.open(name_, std::ios::binary | std::ios::trunc);
    }
    file_ << text << std::flush;
    const bool failsNow = !file_ && !reported_;
    reported_ = reported_ || failsNow;
    return !failsNow;
}

}  // namespace quillmark::replay
