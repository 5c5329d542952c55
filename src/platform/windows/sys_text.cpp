#include "platform/sys_text.h"

#include "foundation/code_page.h"
#include "foundation/surrogates.h"
#include "platform/windows/windows_api.h"

namespace quillmark {

namespace {

/// Texts go to the system in pieces whose length fits into 32 bits and that do not split a pair.
constexpr std::size_t largestPiece = std::size_t{1} << 20U;

std::size_t pieceLength(std::u16string_view text) noexcept {
    if (text.size() <= largestPiece) {
        return text.size();
    }
    return surrogates::isHigh(text[largestPiece - 1]) ? largestPiece - 1 : largestPiece;
}

void appendThroughSystem(std::string& out, std::u16string_view piece) {
    static_assert(sizeof(wchar_t) == sizeof(char16_t));
    const auto* const wide = reinterpret_cast<const wchar_t*>(piece.data());
    const int length = static_cast<int>(piece.size());
    // The flag prevents replacement by a similar letter. With UTF-8 as the code page, which holds
    // every letter, the system accepts neither the flag nor the substitute.
    const bool utf8 = GetACP() == CP_UTF8;
    const DWORD flags = utf8 ? 0 : WC_NO_BEST_FIT_CHARS;
    const char* const substitute = utf8 ? nullptr : "?";
    const int size =
        WideCharToMultiByte(CP_ACP, flags, wide, length, nullptr, 0, substitute, nullptr);
    const std::size_t start = out.size();
    out.resize(start + static_cast<std::size_t>(size));
    WideCharToMultiByte(CP_ACP, flags, wide, length, out.data() + start, size, substitute, nullptr);
}

}  // namespace

void SysText::appendNarrow(std::string& out, std::u16string_view text) {
    const std::size_t start = out.size();
    out.resize(start + text.size());
    if (code_page::copyAscii(out.data() + start, text)) {
        return;
    }
    out.resize(start);
    while (!text.empty()) {
        const std::size_t length = pieceLength(text);
        appendThroughSystem(out, text.substr(0, length));
        text.remove_prefix(length);
    }
}

OrxString SysText::narrow(std::u16string_view text) {
    std::string bytes;
    appendNarrow(bytes, text);
    return bytes;
}

std::u16string SysText::widen(std::string_view text) {
    const int length = static_cast<int>(text.size());
    const int size = MultiByteToWideChar(CP_ACP, 0, text.data(), length, nullptr, 0);
    std::u16string wide(static_cast<std::size_t>(size), u'\0');
    MultiByteToWideChar(CP_ACP, 0, text.data(), length, reinterpret_cast<wchar_t*>(wide.data()),
                        size);
    return wide;
}

std::string SysText::codePageName() {
    const UINT number = GetACP();
    return number == CP_UTF8 ? "UTF-8" : "Windows-" + std::to_string(number);
}

}  // namespace quillmark
