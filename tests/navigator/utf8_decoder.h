#pragma once

#include "foundation/code_page.h"
#include "navigator/text/text_decoder.h"

namespace quillmark::testing {

/// Documents in UTF-8, which hold every character.
class Utf8Decoder final : public TextDecoder {
public:
    void append(std::u16string& out, std::string_view bytes) const override {
        out.append(code_page::fromUtf8(bytes));
    }
};

}  // namespace quillmark::testing
