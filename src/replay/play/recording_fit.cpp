#include "replay/play/recording_fit.h"

#include <algorithm>

#include "foundation/utf8.h"

namespace quillmark::replay {

namespace {

/// In 8 bits, a text beyond ASCII is hardly ever well-formed UTF-8.
bool isUtf8(std::string_view line) {
    utf8::Check check;
    return check.take(line) && check.isComplete();
}

}  // namespace

bool RecordingFit::isWrong(std::string_view line, const TextEncoding& encoding) {
    const bool plain =
        std::ranges::all_of(line, [](char c) { return static_cast<unsigned char>(c) < 0x80; });
    const bool wantsUtf8 = &encoding == &TextEncoding::utf8();
    if (reported_ || plain || isUtf8(line) == wantsUtf8) {
        return false;
    }
    reported_ = true;
    return true;
}

std::string RecordingFit::problem(const TextEncoding& encoding) {
    return &encoding == &TextEncoding::utf8()
               ? "the recording is not in UTF-8, which the setting Html.CharSet asks for"
               : "the recording is in UTF-8; it was made with --set Html.CharSet=UTF-8";
}

}  // namespace quillmark::replay
