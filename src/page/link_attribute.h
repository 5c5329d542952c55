#pragma once

#include <cstddef>
#include <string_view>

namespace quillmark {

/// The attribute that a link's target stands in.
struct LinkAttribute {
    static constexpr std::string_view opening = "HREF=\"";
    static constexpr std::string_view end = "\"";

    /// The bytes of a markup that give way to the attribute.
    struct Place {
        std::size_t start = std::string_view::npos;
        std::size_t length = 0;

        [[nodiscard]] bool isFound() const noexcept { return start != std::string_view::npos; }
    };

    /// The name's first occurrence in the markup, wherever it stands, in the tag's own letters
    /// too: a place named "A" is found in "<A A>" at the tag. An empty markup is all place; one
    /// without the name, the end of a link, has none.
    [[nodiscard]] static Place placeIn(std::string_view markup, std::string_view name) noexcept {
        return markup.empty() ? Place{0, 0} : Place{markup.find(name), name.size()};
    }
};

}  // namespace quillmark
