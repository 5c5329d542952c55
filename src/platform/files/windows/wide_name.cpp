#include "platform/files/windows/wide_name.h"

#include <algorithm>

#include "platform/files/path_text.h"
#include "platform/text_encoding.h"

namespace quillmark {

// The system's wide character is a UTF-16 unit, although the language treats it as another type.
static_assert(sizeof(wchar_t) == sizeof(char16_t));

std::wstring wideText(std::string_view text) {
    const std::u16string wide = TextEncoding::current().toUtf16(text);
    return {wide.begin(), wide.end()};
}

std::wstring wideName(const OrxString& name) {
    if (path_text::hasZero(name)) {
        return {};
    }
    std::wstring wide = wideText(name);
    std::replace(wide.begin(), wide.end(), L'/', L'\\');
    // The limit for directories, which is 12 characters below that for files.
    constexpr std::size_t longestPlain = MAX_PATH - 12;
    const bool onDrive = path_text::hasDrive(name) && wide.size() > 2 && wide[2] == L'\\';
    if (wide.size() > longestPlain && onDrive) {
        wide.insert(0, L"\\\\?\\");
    }
    return wide;
}

OrxString narrowText(std::wstring_view text) {
    return TextEncoding::current().toBytes(std::u16string(text.begin(), text.end()));
}

}  // namespace quillmark
