#include "platform/files/drive_table.h"
#include "platform/files/path_text.h"
#include "platform/text_encoding.h"

namespace quillmark {

// The system has drives of its own, so the drive table is not used.
std::string nativePath(const OrxString& name) {
    return path_text::hasZero(name) ? std::string() : path_text::inDriverForm(name).str();
}

OrxString driverPath(const std::string& native) {
    return path_text::inDriverForm(TextEncoding::current().fromUtf8(native));
}

}  // namespace quillmark
