#include "dochtml/client.h"
#include "foundation/utf8.h"

namespace quillmark {

Text textFromUtf8(std::string_view utf8) {
    return Text(utf8::toUtf16(utf8));
}

}  // namespace quillmark
