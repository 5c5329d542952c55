#include "component/client/posix/class_lookup.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "component/posix/class_file.h"
#include "dochtml/client.h"
#include "platform/files/file_failure.h"

namespace quillmark {
namespace {

int hexDigit(char character) noexcept {
    if (character >= '0' && character <= '9') {
        return character - '0';
    }
    const auto lower = static_cast<char>(character | 0x20);
    return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}

/// The default value of a key; nothing when there is no such key or value.
std::optional<std::string> defaultValue(const KeyTree& root, const std::string& path) {
    const KeyTree* key = findKey(root, path);
    if (key == nullptr) {
        return std::nullopt;
    }
    const auto value = key->values.find({});
    return value == key->values.end() ? std::nullopt : std::optional(value->second.data);
}

std::optional<std::string> classOfProgram(const KeyTree& root, const std::string& program) {
    if (auto classId = defaultValue(root, program + "\\CLSID")) {
        return classId;
    }
    const auto current = defaultValue(root, program + "\\CurVer");
    return current ? defaultValue(root, *current + "\\CLSID") : std::nullopt;
}

/// Class identifiers are not case-sensitive.
const KeyTree* findClassKey(const KeyTree& root, const GUID& classId) {
    const KeyTree* classes = findKey(root, "CLSID");
    if (classes == nullptr) {
        return nullptr;
    }
    const auto found =
        std::find_if(classes->children.begin(), classes->children.end(), [&](const auto& child) {
            const auto id = parseGuid(child.first);
            return id && *id == classId;
        });
    return found == classes->children.end() ? nullptr : &found->second;
}

/// All classes that are registered for the user.
KeyTree registeredClasses() {
    const std::filesystem::path file = classFilePath();
    FileFailure::forget();
    std::optional<KeyTree> root = readClassFile(file);
    if (!root) {
        const std::string reason = FileFailure::reason();
        throw ComponentError(
            "cannot read " + file.string() + (reason.empty() ? reason : ": " + reason),
            REGDB_E_READREGDB);
    }
    return *std::move(root);
}

}  // namespace

RegisteredClass findRegisteredClass(const std::string& identifier) {
    const KeyTree root = registeredClasses();
    const auto text = identifier.starts_with('{') ? identifier : classOfProgram(root, identifier);
    const auto classId = text ? parseGuid(*text) : std::nullopt;
    if (!classId) {
        throw ComponentError(identifier + " is not registered", CO_E_CLASSSTRING);
    }
    const KeyTree* key = findClassKey(root, *classId);
    const auto library = key == nullptr ? std::nullopt : defaultValue(*key, "InprocServer32");
    if (!library) {
        throw ComponentError("the class of " + identifier + " is not registered",
                             REGDB_E_CLASSNOTREG);
    }
    // The system would look for it in the current directory or on its search path, where others may
    // have put a library of that name.
    if (!library->starts_with('/')) {
        throw ComponentError("the library of " + identifier + ", \"" + *library + "\" in " +
                                 classFilePath().string() + ", is not an absolute path",
                             CO_E_DLLNOTFOUND);
    }
    return {*classId, *library};
}

std::optional<GUID> parseGuid(std::string_view text) {
    constexpr std::string_view shape = "{xxxxxxxx-xxxx-xxxx-xxxx-xxxxxxxxxxxx}";
    if (text.size() != shape.size()) {
        return std::nullopt;
    }
    std::array<std::uint8_t, sizeof(GUID)> bytes{};
    std::size_t digits = 0;
    for (std::size_t i = 0; i < shape.size(); ++i) {
        if (shape[i] != 'x') {
            if (text[i] != shape[i]) {
                return std::nullopt;
            }
            continue;
        }
        const int digit = hexDigit(text[i]);
        if (digit < 0) {
            return std::nullopt;
        }
        bytes[digits / 2] = static_cast<std::uint8_t>(bytes[digits / 2] << 4 | digit);
        ++digits;
    }
    GUID guid{};
    guid.Data1 = std::uint32_t{bytes[0]} << 24 | std::uint32_t{bytes[1]} << 16 |
                 std::uint32_t{bytes[2]} << 8 | bytes[3];
    guid.Data2 = static_cast<std::uint16_t>(bytes[4] << 8 | bytes[5]);
    guid.Data3 = static_cast<std::uint16_t>(bytes[6] << 8 | bytes[7]);
    std::copy(bytes.begin() + 8, bytes.end(), guid.Data4);
    return guid;
}

}  // namespace quillmark
