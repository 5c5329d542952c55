#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "dochtml/automation.h"

namespace quillmark {

struct RegisteredClass {
    CLSID classId{};
    /// The file of the library that contains the class.
    std::string library;
};

/// Looks up a class in the user's class file by its class identifier in braces or its program
/// identifier. A program identifier without a version means the current version. Throws
/// `ComponentError`.
[[nodiscard]] RegisteredClass findRegisteredClass(const std::string& identifier);

/// Reads a class identifier such as "{474BDD91-0170-11d3-A6BF-00104B2AEFE1}".
[[nodiscard]] std::optional<GUID> parseGuid(std::string_view text);

}  // namespace quillmark
