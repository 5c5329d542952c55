#include "driver/text/embedded_link.h"

namespace quillmark {

namespace {

constexpr std::string_view opening = "<a href=\"#GUID";
constexpr std::string_view anchorStart = "<a href=\"#";
constexpr std::string_view openingEnd = "\">";
constexpr std::string_view closing = "</a>";

}  // namespace

std::optional<EmbeddedLink> findEmbeddedLink(std::string_view text) noexcept {
    // Fast path: most texts do not have a "<".
    if (text.find('<') == std::string_view::npos) {
        return std::nullopt;
    }
    const std::size_t start = text.find(opening);
    if (start == std::string_view::npos) {
        return std::nullopt;
    }
    const std::size_t targetEnd = text.find(openingEnd, start);
    if (targetEnd == std::string_view::npos) {
        return std::nullopt;
    }
    const std::size_t textEnd = text.find(closing, targetEnd);
    if (textEnd == std::string_view::npos) {
        return std::nullopt;
    }
    const std::size_t targetStart = start + anchorStart.size();
    const std::size_t textStart = targetEnd + openingEnd.size();
    return EmbeddedLink{text.substr(0, start), text.substr(targetStart, targetEnd - targetStart),
                        text.substr(textStart, textEnd - textStart),
                        text.substr(textEnd + closing.size())};
}

}  // namespace quillmark
