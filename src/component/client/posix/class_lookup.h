#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "dochtml/automation.h"

namespace quillmark {

struct RegisteredClass {
    CLSID classId{};
    /// The file that serves it.
    std::string library;
};

/// The class behind a program identifier (one without a version leads to the current one) or a
/// class identifier in braces, from the user's file of classes. Throws `ComponentError`.
[[nodiscard]] RegisteredClass findRegisteredClass(const std::string& identifier);

/// Reads "{474BDD91-0170-11d3-A6BF-00104B2AEFE1}".
[[nodiscard]] std::optional<GUID> parseGuid(std::string_view text);

}  // namespace quillmark
