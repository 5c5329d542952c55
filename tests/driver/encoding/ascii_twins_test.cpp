// Random documents of ASCII alone, with and without UTF-8: the head line is the only difference,
// and links to files whose names hold "%", "#" or "?".
//
// DOCHTML_TEST_ROUNDS=n makes another number of documents.

#include <gtest/gtest.h>

#include <cstdlib>

#include "driver/encoding/random_calls.h"
#include "driver/encoding/scripts.h"
#include "foundation/orx_string.h"
#include "support/memory_settings_store.h"

namespace quillmark::testing {
namespace {

constexpr std::string_view eightBitLine = "CONTENT=\"text/html; iso-8859-1\">";
constexpr std::string_view utf8Line = "CONTENT=\"text/html; charset=utf-8\">";

std::string asciiBytes(std::u16string_view text) {
    return {text.begin(), text.end()};
}

std::uint32_t roundsOr(std::uint32_t fallback) {
    const char* const text = std::getenv("DOCHTML_TEST_ROUNDS");
    return text == nullptr ? fallback : static_cast<std::uint32_t>(std::strtoul(text, nullptr, 10));
}

TEST(AsciiTwins, DifferInTheHeadLineAlone) {
    InstalledSettingsStore settings;
    const std::uint32_t rounds = roundsOr(300);
    for (std::uint32_t seed = 1; seed <= rounds; ++seed) {
        settings.set("Html", "CharSet", "");
        WrittenDocument plain = writtenRandomly(seed, asciiVocabulary(), asciiBytes);
        settings.set("Html", "CharSet", "UTF-8");
        const WrittenDocument utf8 = writtenRandomly(seed, asciiVocabulary(), asciiBytes);
        for (auto& [name, bytes] : plain.files) {
            bytes = OrxString(bytes).replaceStr(eightBitLine, utf8Line).str();
        }
        ASSERT_EQ(utf8.trace, plain.trace) << "document " << seed;
        ASSERT_EQ(utf8.files, plain.files) << "document " << seed;
    }
}

}  // namespace
}  // namespace quillmark::testing
