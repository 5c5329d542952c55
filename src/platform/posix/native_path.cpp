#include <algorithm>

#include "foundation/code_page.h"
#include "foundation/utf8.h"
#include "platform/drive_table.h"
#include "platform/path_text.h"

namespace quillmark {

namespace {

bool isAscii(std::string_view text) noexcept {
    return std::ranges::all_of(text, [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

std::string utf8Name(std::string_view name) {
    return isAscii(name) ? std::string(name) : utf8::fromUtf16(code_page::widened(name));
}

}  // namespace

std::string nativePath(const OrxString& name) {
    if (path_text::hasZero(name)) {
        return {};
    }
    if (path_text::hasDrive(name)) {
        if (std::optional<std::string> directory = DriveTable::find(name.view()[0])) {
            return DriveTable::nameUnder(*std::move(directory), utf8Name(name.view().substr(2)));
        }
    }
    std::string path = utf8Name(name);
    std::replace(path.begin(), path.end(), '\\', '/');
    return path;
}

OrxString driverPath(const std::string& native) {
    std::string name;
    code_page::appendNarrowed(name, utf8::toUtf16(native));
    std::replace(name.begin(), name.end(), '/', '\\');
    return name;
}

}  // namespace quillmark
