#include "command_line/drive.h"

#include "command_line/bad_usage.h"
#include "foundation/ascii.h"

namespace quillmark {

Drive parseDrive(const std::string& text) {
    if (text.size() < 3 || !ascii::isLetter(text[0]) || text[1] != '=') {
        throw BadUsage("--drive takes X=DIR, not \"" + text + "\"");
    }
    return {text[0], text.substr(2)};
}

}  // namespace quillmark
