#include "navigator/text/text_decoder.h"

#include "platform/sys_text.h"

namespace quillmark {

void CodePageDecoder::append(std::u16string& out, std::string_view bytes) const {
    out.append(SysText::widen(bytes));
}

}  // namespace quillmark
