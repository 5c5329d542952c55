#include "replay/tool/shown_names.h"

#include <algorithm>
#include <array>

#include "command_line/utf8_path.h"
#include "platform/sys_text.h"

namespace quillmark::replay {

namespace {

/// The driver's messages that end with the name of a file.
constexpr std::array<std::string_view, 10> openings = {
    "Error opening file: ", "Error writing to file: ",
    "Cannot open : ",       "Cannot look up file ",
    "Cannot read file ",    "Cannot read to the end of file ",
    "Cannot remove file ",  "Could not read file ",
    "File not found: ",     "Html style sheet does not exist.\n"};
constexpr std::string_view copyFailure = "Could not copy file ";
constexpr std::string_view copyTarget = " to directory ";

}  // namespace

std::string ShownNames::path(const OrxString& driverName) const {
    std::string name = SysText::toUtf8(driverName);
    if (name.empty()) {
        return name;
    }
    std::replace(name.begin(), name.end(), '\\', '/');
    const std::filesystem::path path = files_.native(name);
    const std::string fromStart = utf8Path(path.lexically_relative(start_).generic_u8string());
    const bool isBelow = !fromStart.empty() && !fromStart.starts_with("..");
    return isBelow ? fromStart : utf8Path(path);
}

std::string ShownNames::withNames(std::string_view driverText) const {
    const std::size_t middle = driverText.rfind(copyTarget);
    if (driverText.starts_with(copyFailure) && middle != std::string_view::npos) {
        const std::string_view source =
            driverText.substr(copyFailure.size(), middle - copyFailure.size());
        return std::string(copyFailure) + path(source) + std::string(copyTarget) +
               path(driverText.substr(middle + copyTarget.size()));
    }
    for (const std::string_view opening : openings) {
        if (driverText.starts_with(opening)) {
            return std::string(opening) + path(driverText.substr(opening.size()));
        }
    }
    return SysText::toUtf8(driverText);
}

std::string ShownNames::message(std::string_view driverText, std::string_view reason) const {
    std::string text = withNames(driverText);
    return reason.empty() ? text : text.append(": ").append(SysText::toUtf8(reason));
}

}  // namespace quillmark::replay
