#pragma once

#include <compare>
#include <cstddef>
#include <functional>
#include <iosfwd>
#include <string>
#include <string_view>

namespace quillmark {

/// A byte string. The driver uses it for every text, name and path.
///
/// The bytes are in the encoding of the document at work. Wide text from a host is converted once,
/// on entry (see platform/text_encoding.h). Positions and lengths count bytes, and any byte may
/// occur, zero included. The string owns its bytes. What `view`, `str` and `data` return is valid
/// until the next change.
///
///     OrxString link("C:\\out\\pix\\a.gif");
///     link.replaceStr(":", "|").replaceStr("\\", "/");   // "C|/out/pix/a.gif"
class OrxString {
public:
    /// The position that stands for "not found".
    static constexpr std::size_t npos = std::string::npos;

    OrxString() = default;
    OrxString(const char* text) : bytes_(text == nullptr ? "" : text) {}
    OrxString(std::string_view text) : bytes_(text) {}
    OrxString(std::string text) noexcept : bytes_(std::move(text)) {}

    [[nodiscard]] const char* data() const noexcept { return bytes_.c_str(); }
    [[nodiscard]] std::size_t length() const noexcept { return bytes_.size(); }
    [[nodiscard]] bool isEmpty() const noexcept { return bytes_.empty(); }
    [[nodiscard]] std::string_view view() const noexcept { return bytes_; }
    [[nodiscard]] const std::string& str() const noexcept { return bytes_; }
    operator std::string_view() const noexcept { return bytes_; }

    OrxString& append(std::string_view text);
    OrxString& append(char character);
    /// Inserts before the byte at `pos`. A position beyond the end appends.
    OrxString& insert(std::size_t pos, std::string_view text);
    /// Removes `count` bytes, starting at `pos`, or all up to the end if there are fewer.
    OrxString& remove(std::size_t pos, std::size_t count = npos);
    void clear() noexcept { bytes_.clear(); }

    /// The position of the first occurrence at or after `from`, or `npos`.
    [[nodiscard]] std::size_t find(std::string_view text, std::size_t from = 0) const noexcept;
    /// The position of the first or last occurrence of a character, or `npos`.
    [[nodiscard]] std::size_t first(char character) const noexcept;
    [[nodiscard]] std::size_t last(char character) const noexcept;
    [[nodiscard]] bool contains(std::string_view text) const noexcept;
    [[nodiscard]] bool startsWith(std::string_view text) const noexcept;
    /// At most `count` bytes, starting at `pos`. Empty if `pos` is beyond the end.
    [[nodiscard]] OrxString substr(std::size_t pos, std::size_t count = npos) const;

    /// Replaces every occurrence of `from` by `to`, left to right. Inserted text is not searched
    /// again. An empty `from` changes nothing.
    OrxString& replaceStr(std::string_view from, std::string_view to);

    /// Changes ASCII letters only, whatever the locale.
    OrxString& toLower() noexcept;
    OrxString& toUpper() noexcept;

    /// FNV-1a with 64 bits. Equal strings have the same hash on every machine and in every run.
    [[nodiscard]] std::size_t hash() const noexcept;

    friend bool operator==(const OrxString& a, const OrxString& b) noexcept {
        return a.bytes_ == b.bytes_;
    }
    friend bool operator==(const OrxString& a, const char* b) noexcept { return a.bytes_ == b; }
    friend bool operator==(const OrxString& a, const std::string& b) noexcept {
        return a.bytes_ == b;
    }
    friend bool operator==(const OrxString& a, std::string_view b) noexcept {
        return a.bytes_ == b;
    }
    /// Order by unsigned bytes, case-sensitive.
    friend std::strong_ordering operator<=>(const OrxString& a, const OrxString& b) noexcept {
        return a.bytes_.compare(b.bytes_) <=> 0;
    }

    OrxString& operator+=(std::string_view text) { return append(text); }

private:
    std::string bytes_;
};

[[nodiscard]] OrxString operator+(const OrxString& a, std::string_view b);
[[nodiscard]] OrxString operator+(const OrxString& a, const OrxString& b);
[[nodiscard]] OrxString operator+(const OrxString& a, const std::string& b);
[[nodiscard]] OrxString operator+(const OrxString& a, const char* b);
[[nodiscard]] OrxString operator+(std::string_view a, const OrxString& b);
[[nodiscard]] OrxString operator+(const std::string& a, const OrxString& b);
[[nodiscard]] OrxString operator+(const char* a, const OrxString& b);
std::ostream& operator<<(std::ostream& out, const OrxString& text);

}  // namespace quillmark

template <>
struct std::hash<quillmark::OrxString> {
    std::size_t operator()(const quillmark::OrxString& text) const noexcept { return text.hash(); }
};
