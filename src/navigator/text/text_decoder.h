#pragma once

#include <string>
#include <string_view>

namespace quillmark {

/// From the bytes of a document's pages to characters. The navigator knows the encoding of a
/// document through this object alone.
///
/// Every encoding here holds ASCII bytes below 0x30, "<" and ">" as themselves and never as parts
/// of other characters.
class TextDecoder {
public:
    virtual ~TextDecoder() = default;
    /// Appends the UTF-16 form of `bytes`, which begin and end between characters.
    virtual void append(std::u16string& out, std::string_view bytes) const = 0;
};

/// Documents in the system's 8-bit code page.
class CodePageDecoder final : public TextDecoder {
public:
    void append(std::u16string& out, std::string_view bytes) const override;
};

}  // namespace quillmark
