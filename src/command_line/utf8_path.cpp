#include "command_line/utf8_path.h"

namespace quillmark {

std::string utf8Path(const std::filesystem::path& path) {
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
}

std::filesystem::path pathFrom(const std::string& utf8) {
    return std::u8string(utf8.begin(), utf8.end());
}

}  // namespace quillmark
