#include <algorithm>

#include "foundation/code_page.h"
#include "platform/drive_table.h"
#include "platform/path_text.h"

namespace quillmark {

namespace {

bool isAscii(std::string_view text) noexcept {
    return std::ranges::all_of(text, [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

std::string withSlashes(std::string_view name) {
    std::string path =
        isAscii(name) ? std::string(name) : code_page::toUtf8(code_page::widened(name));
    std::replace(path.begin(), path.end(), '\\', '/');
    return path;
}

}  // namespace

std::string nativePath(const OrxString& name) {
    if (path_text::hasZero(name)) {
        return {};
    }
    if (path_text::hasDrive(name)) {
        if (std::optional<std::string> directory = DriveTable::find(name.view()[0])) {
            std::string rest = withSlashes(name.view().substr(2));
            if (!rest.empty() && !rest.starts_with('/')) {
                rest.insert(0, "/");
            }
            if (!rest.empty() && directory->ends_with('/')) {
                directory->pop_back();
            }
            return *directory + rest;
        }
    }
    return withSlashes(name);
}

OrxString driverPath(const std::string& native) {
    std::string name;
    code_page::appendNarrowed(name, code_page::fromUtf8(native));
    std::replace(name.begin(), name.end(), '/', '\\');
    return name;
}

}  // namespace quillmark
