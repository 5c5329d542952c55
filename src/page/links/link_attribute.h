#pragma once

#include <cstddef>
#include <string_view>

namespace quillmark {

/// The attribute that holds the target of a link: HREF="target".
struct LinkAttribute {
    static constexpr std::string_view opening = "HREF=\"";
    static constexpr std::string_view end = "\"";

    /// The bytes of a markup that the attribute replaces.
    struct Place {
        std::size_t start = std::string_view::npos;
        std::size_t length = 0;

        [[nodiscard]] bool isFound() const noexcept { return start != std::string_view::npos; }
    };

    /// Finds the first occurrence of the name in the markup, even in the name of the tag: for the
    /// name "A", the place in "<A A>" is the tag's "A". An empty markup is replaced as a whole. A
    /// markup without the name, such as the end of a link, has no place.
    [[nodiscard]] static Place placeIn(std::string_view markup, std::string_view name) noexcept {
        return markup.empty() ? Place{0, 0} : Place{markup.find(name), name.size()};
    }
};

}  // namespace quillmark
