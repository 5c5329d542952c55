#include "command_line/drive.h"

#include "command_line/bad_usage.h"
#include "command_line/option_parser.h"
#include "foundation/ascii.h"

namespace quillmark {
namespace {

Drive parseDrive(const std::string& text) {
    if (text.size() < 3 || !ascii::isLetter(text[0]) || text[1] != '=') {
        throw BadUsage("--drive takes X=DIR, not \"" + text + "\"");
    }
    return {text[0], text.substr(2)};
}

}  // namespace

void addDriveOption(OptionParser& parser, std::vector<Drive>& drives) {
    parser.addOption("--drive", "X=DIR", "map drive X: to DIR (repeatable)",
                     [&drives](const std::string& text) { drives.push_back(parseDrive(text)); });
}

}  // namespace quillmark
