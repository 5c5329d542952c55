#include "settings_ui/tool/answer_source.h"

namespace quillmark {

std::optional<std::string> StreamAnswers::ask(const std::string& prompt,
                                              const std::string& /*current*/) {
    out_ << prompt << std::flush;
    std::string line;
    if (!std::getline(in_, line)) {
        return std::nullopt;
    }
    if (line.ends_with('\r')) {
        line.pop_back();
    }
    return line;
}

}  // namespace quillmark
