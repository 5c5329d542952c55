#pragma once

#include "foundation/utf8.h"
#include "navigator/text/text_decoder.h"

namespace quillmark::testing {

/// Documents in UTF-8, which hold every character.
class Utf8Decoder final : public TextDecoder {
public:
    void append(std::u16string& out, std::string_view bytes) const override {
        out.append(utf8::toUtf16(bytes));
    }
};

}  // namespace quillmark::testing
