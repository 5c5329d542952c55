// Conversions between UTF-8, UTF-16 and the code page agree with each other on every input.

#include <string>
#include <string_view>

#include "foundation/code_page.h"
#include "foundation/utf8.h"
#include "platform/text_encoding.h"
#include "support/byte_source.h"
#include "support/require.h"

namespace quillmark::fuzzing {
namespace {

constexpr char16_t replacement = 0xFFFD;

/// Decodes strictly; false for malformed bytes.
bool decoded(std::string_view bytes, utf8::LoneSurrogates lone, std::u16string& text) {
    text.assign(bytes.size(), u'\0');
    const char16_t* const end = utf8::decodeStrictly(bytes, text.data(), lone);
    text.resize(end == nullptr ? 0 : static_cast<std::size_t>(end - text.data()));
    return end != nullptr;
}

void checkDecoding(std::string_view bytes) {
    std::u16string strict;
    std::u16string accepting;
    const std::u16string lenient = utf8::toUtf16(bytes);
    const bool isValid = decoded(bytes, utf8::LoneSurrogates::malformed, strict);
    const bool isAccepted = decoded(bytes, utf8::LoneSurrogates::accepted, accepting);
    require(!isValid || isAccepted, "what is valid is accepted");
    require(!isValid || (strict == lenient && strict == accepting), "all decode alike");
    require(!isValid || utf8::fromUtf16(strict) == bytes, "valid UTF-8 comes back");
    require(isValid || isAccepted || lenient.find(replacement) != std::u16string::npos,
            "malformed bytes leave a mark");
}

void checkEncoding(std::u16string_view units) {
    const std::string bytes = utf8::fromUtf16(units);
    std::u16string back;
    require(decoded(bytes, utf8::LoneSurrogates::malformed, back), "encoded text is valid");
    require(back.size() == units.size(), "each unit comes back");
    for (std::size_t at = 0; at < units.size(); ++at) {
        require(back[at] == units[at] || back[at] == replacement, "only lone halves change");
    }
    std::string narrowed;
    code_page::appendNarrowed(narrowed, units);
    require(narrowed.size() == units.size(), "each unit gives one byte");
    std::string ascii(units.size(), '\0');
    require(!code_page::copyAscii(ascii.data(), units) || ascii == narrowed, "ASCII stays");
    const TextEncoding& codePage = TextEncoding::codePage();
    const bool holds = codePage.holds(units);
    // Counting takes much longer than all the rest.
    require(units.size() % 8 != 0 || holds == (codePage.countLost(units) == 0),
            "nothing is lost that is held");
    require(!holds || codePage.toUtf16(narrowed) == units, "held text comes back");
}

void checkCodePage(std::string_view bytes) {
    std::string back;
    code_page::appendNarrowed(back, code_page::widened(bytes));
    require(back == bytes, "bytes of the code page come back");
    const TextEncoding& codePage = TextEncoding::codePage();
    require(codePage.fromUtf8(codePage.toUtf8(bytes)).view() == bytes,
            "bytes of the code page come back from UTF-8");
}

}  // namespace
}  // namespace quillmark::fuzzing

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace quillmark::fuzzing;
    const std::string_view bytes = ByteSource(data, size).rest();
    checkDecoding(bytes);
    checkEncoding(unitsOf(bytes));
    checkCodePage(bytes);
    return 0;
}
