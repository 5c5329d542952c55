#include <algorithm>

#include "platform/files/drive_table.h"
#include "platform/files/path_text.h"
#include "platform/text_encoding.h"

namespace quillmark {

std::string nativePath(const OrxString& name) {
    if (path_text::hasZero(name)) {
        return {};
    }
    if (path_text::hasDrive(name)) {
        if (std::optional<std::string> directory = DriveTable::find(name.view()[0])) {
            return DriveTable::nameUnder(*std::move(directory),
                                         TextEncoding::current().toUtf8(name.view().substr(2)));
        }
    }
    std::string path = TextEncoding::current().toUtf8(name);
    std::replace(path.begin(), path.end(), '\\', '/');
    return path;
}

OrxString driverPath(const std::string& native) {
    return path_text::inDriverForm(TextEncoding::current().fromUtf8(native));
}

}  // namespace quillmark
