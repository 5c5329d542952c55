#pragma once

#include <string>
#include <string_view>

#include "platform/text_encoding.h"

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

/// Documents of this driver, each with its own encoding.
class DocumentDecoder final : public TextDecoder {
public:
    explicit DocumentDecoder(const TextEncoding& encoding) noexcept : encoding_(encoding) {}
    void append(std::u16string& out, std::string_view bytes) const override;

private:
    const TextEncoding& encoding_;
};

}  // namespace quillmark
