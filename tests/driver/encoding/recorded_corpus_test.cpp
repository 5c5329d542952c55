// 600 random documents in the 8-bit code page, whose digests were recorded before documents could
// have another encoding. A difference means that existing documents have changed.
//
// The digests are in recorded_corpus.txt, one per line. DOCHTML_CORPUS=FILE writes them to a file
// instead of comparing them.

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <sstream>

#include "driver/encoding/random_calls.h"
#include "foundation/orx_string.h"
#include "platform/line_end.h"
#include "platform/sys_text.h"
#include "support/memory_settings_store.h"

namespace quillmark::testing {
namespace {

constexpr std::uint32_t corpusSize = 600;

std::string codePageBytes(std::u16string_view text) {
    return SysText::narrow(text).str();
}

/// The digests were recorded where lines end in a line feed. Only traces and tree data end their
/// lines as the system does.
OrxString withLineFeeds(std::string_view text) {
    return OrxString(text).replaceStr(systemLineEnd(), "\n");
}

std::string digestOf(const WrittenDocument& document) {
    OrxString all = withLineFeeds(document.trace);
    for (const auto& [name, bytes] : document.files) {
        all.append('\0').append(name).append('\0');
        all.append(std::string_view(name).ends_with("_toc.dat") ? withLineFeeds(bytes)
                                                                : OrxString(bytes));
    }
    std::ostringstream line;
    line << std::hex << static_cast<std::uint64_t>(all.hash());
    return line.str();
}

/// A document of the corpus.
std::string corpusDigest(std::uint32_t seed) {
    return digestOf(writtenRandomly(seed, latinVocabulary(), codePageBytes));
}

void writeCorpus(const char* fileName) {
    std::ofstream out(fileName, std::ios::binary);
    for (std::uint32_t seed = 1; seed <= corpusSize; ++seed) {
        out << corpusDigest(seed) << "\n";
    }
}

TEST(RecordedCorpus, IsReproducedByteForByte) {
    const InstalledSettingsStore settings;
    if (const char* const fileName = std::getenv("DOCHTML_CORPUS"); fileName != nullptr) {
        writeCorpus(fileName);
        return;
    }
    std::ifstream recorded(DOCHTML_RECORDED_CORPUS, std::ios::binary);
    ASSERT_TRUE(recorded.is_open());
    std::uint32_t seed = 0;
    for (std::string line; std::getline(recorded, line);) {
        ++seed;
        EXPECT_EQ(corpusDigest(seed), line) << "document " << seed;
    }
    EXPECT_EQ(seed, corpusSize);
}

}  // namespace
}  // namespace quillmark::testing
