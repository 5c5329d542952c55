#pragma once

#include <optional>
#include <string_view>

namespace quillmark {

/// A link inside a text: `<a href="#GUID…">text</a>`.
struct EmbeddedLink {
    std::string_view before;
    /// Begins with "GUID".
    std::string_view target;
    std::string_view text;
    std::string_view after;
};

/// Finds the first complete link in a text. An incomplete link is ordinary text. The parts are
/// views into `text`.
[[nodiscard]] std::optional<EmbeddedLink> findEmbeddedLink(std::string_view text) noexcept;

}  // namespace quillmark
