#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "navigator/text/text_decoder.h"

/// Texts of contents entries without their HTML.
namespace quillmark::plain_text {

/// The most code points of an entry's text.
inline constexpr std::size_t longest = 200;

/// Appends `html` with its character references decoded, each once.
void appendDecoded(std::u16string& out, std::u16string_view html);

/// The text of an entry, or a document's title: references decoded once, runs of blanks joined,
/// blanks at both ends dropped, and a long text cut with an ellipsis.
[[nodiscard]] std::u16string ofHtml(std::string_view html, const TextDecoder& decoder);

}  // namespace quillmark::plain_text
