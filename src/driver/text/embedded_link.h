#pragma once

#include <optional>
#include <string_view>

namespace quillmark {

/// A link that a text carries inside: `<a href="#GUID…">text</a>`.
struct EmbeddedLink {
    std::string_view before;
    /// From "GUID" on, which belongs to the target.
    std::string_view target;
    std::string_view text;
    std::string_view after;
};

/// The first link of a text; nothing when the form is missing or not complete, in which case its
/// characters are text like any other. The parts are views into `text`.
[[nodiscard]] std::optional<EmbeddedLink> findEmbeddedLink(std::string_view text) noexcept;

}  // namespace quillmark
