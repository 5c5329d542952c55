#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "foundation/orx_string.h"

namespace quillmark {

/// How a document keeps its texts as bytes: in the system's 8-bit code page, or in UTF-8. This is
/// the only place that knows; everything else works on bytes and never cuts a character, because
/// what it looks for is ASCII.
///
/// A document holds its encoding and puts it in force on the thread that it works on:
///
///     const TextEncoding& encoding = TextEncoding::named("UTF-8");
///     const TextEncoding::Scope scope(encoding);
///     SysFile::exists(encoding.toBytes(name));   // the name is understood as UTF-8
///
/// The two encodings live as long as the process, and their addresses identify them.
class TextEncoding {
public:
    /// The system's 8-bit code page (platform/sys_text.h).
    [[nodiscard]] static const TextEncoding& codePage() noexcept;
    [[nodiscard]] static const TextEncoding& utf8() noexcept;
    /// The encoding for a value of the setting "CharSet": UTF-8 for "UTF-8" in any case, the code
    /// page for every other text.
    [[nodiscard]] static const TextEncoding& named(std::string_view charSet) noexcept;
    /// The encoding that is in force on this thread: that of the document that is at work, and the
    /// code page outside of all documents. File names and the texts of services are in it.
    [[nodiscard]] static const TextEncoding& current() noexcept;

    /// Puts an encoding in force on this thread for its lifetime.
    class Scope {
    public:
        explicit Scope(const TextEncoding& encoding) noexcept;
        ~Scope();
        Scope(const Scope&) = delete;
        Scope& operator=(const Scope&) = delete;

    private:
        const TextEncoding** place_;
        const TextEncoding* before_;
    };

    TextEncoding(const TextEncoding&) = delete;
    TextEncoding& operator=(const TextEncoding&) = delete;

    /// Appends UTF-16 text to `out` as bytes. What the encoding cannot hold is replaced: by "?" in
    /// the code page, by U+FFFD for half a surrogate pair in UTF-8.
    virtual void append(std::string& out, std::u16string_view text) const = 0;
    [[nodiscard]] OrxString toBytes(std::u16string_view text) const;
    [[nodiscard]] virtual std::u16string toUtf16(std::string_view bytes) const = 0;
    /// Conversions from and to UTF-8. Malformed UTF-8 is repaired with U+FFFD.
    [[nodiscard]] OrxString fromUtf8(std::string_view text) const;
    [[nodiscard]] std::string toUtf8(std::string_view bytes) const;
    /// Bytes of the encoding `from` in this one.
    [[nodiscard]] OrxString recoded(const OrxString& bytes, const TextEncoding& from) const;

    /// Whether the encoding can hold `text`, so that `append` loses nothing. Malformed UTF-16
    /// cannot be held.
    [[nodiscard]] bool holds(std::u16string_view text) const;
    /// The number of characters in `text` that it cannot hold.
    [[nodiscard]] std::size_t countLost(std::u16string_view text) const;

    /// What the content-type line of a page says.
    [[nodiscard]] virtual std::string_view contentType() const noexcept = 0;
    /// A path as a link to it is written. UTF-8 is percent-encoded where a browser needs it: all
    /// bytes outside ASCII, "%", "#" and "?". A path in the code page stays as it is.
    [[nodiscard]] virtual OrxString inLink(OrxString path) const = 0;

    /// The encoding of a text from a side that does not know the document. A document in UTF-8
    /// takes what is valid UTF-8 as such, and anything else as a text in the code page.
    [[nodiscard]] virtual const TextEncoding& ofText(std::string_view bytes) const = 0;
    /// The same for a text file that a document in this encoding includes. A document in UTF-8
    /// reads the file to find out.
    [[nodiscard]] virtual const TextEncoding& ofFile(const OrxString& name) const = 0;
    /// Whether a byte begins a character. Only the others may follow it.
    [[nodiscard]] virtual bool beginsCharacter(unsigned char byte) const noexcept = 0;
    /// The bytes that mark a file as one in this encoding, and are not part of its text.
    [[nodiscard]] virtual std::string_view byteOrderMark() const noexcept = 0;

protected:
    TextEncoding() = default;
    ~TextEncoding() = default;
};

}  // namespace quillmark
