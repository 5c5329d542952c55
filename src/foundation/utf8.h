#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

/// Conversions between UTF-8 and UTF-16.
namespace quillmark::utf8 {

/// Whether three bytes that encode half of a surrogate pair count as a character. Valid UTF-8 has
/// no such bytes, but a host's UTF-16 text may hold half a pair, which must survive a round trip.
enum class LoneSurrogates { malformed, accepted };

/// Decodes leniently: each byte that is not part of a well-formed character becomes U+FFFD.
///
///     utf8::toUtf16("\xC3\xA9");   // u"\u00E9"
///     utf8::toUtf16("a\xFF");      // u"a\uFFFD"
[[nodiscard]] std::u16string toUtf16(std::string_view utf8);

/// Decodes strictly: writes the UTF-16 form of `utf8` to `out` and returns the end of what it
/// wrote, or null at the first malformed byte. `out` must have room for `utf8.size()` units.
[[nodiscard]] char16_t* decodeStrictly(std::string_view utf8, char16_t* out,
                                       LoneSurrogates loneSurrogates) noexcept;

/// Appends the UTF-8 form of a code point, which is not a surrogate.
void append(std::string& out, char32_t point);

/// Encodes UTF-16 text. A lone surrogate becomes U+FFFD.
[[nodiscard]] std::string fromUtf16(std::u16string_view text);
/// Appends UTF-16 text to `out` in the same way.
void append(std::string& out, std::u16string_view text);

/// Checks whether a text that comes in pieces is well-formed.
///
///     utf8::Check check;
///     while (...) { if (!check.take(piece)) return false; }
///     return check.isComplete();
class Check {
public:
    /// False at the first malformed byte. Then take no more.
    [[nodiscard]] bool take(std::string_view piece);
    /// Whether the text ends after a whole character.
    [[nodiscard]] bool isComplete() const noexcept { return kept_ == 0; }

private:
    /// The bytes of a character that the last piece cut.
    std::array<char, 4> cut_{};
    std::size_t kept_ = 0;
};

}  // namespace quillmark::utf8
