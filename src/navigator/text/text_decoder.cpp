#include "navigator/text/text_decoder.h"

namespace quillmark {

void DocumentDecoder::append(std::u16string& out, std::string_view bytes) const {
    out.append(encoding_.toUtf16(bytes));
}

}  // namespace quillmark
