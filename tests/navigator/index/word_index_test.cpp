#include "navigator/index/word_index.h"

#include <gtest/gtest.h>

#include <map>
#include <random>
#include <set>
#include <string>

#include "foundation/utf8.h"
#include "navigator/data/number_list_text.h"
#include "navigator/text/word_splitter.h"
#include "support/capturing_exception_log.h"
#include "support/installed_file_system.h"
#include "support/memory_file_system.h"

namespace quillmark {

namespace {

using Numbers = std::set<std::uint32_t>;
struct Lists {
    Numbers entries;
    Numbers pages;
    friend bool operator==(const Lists&, const Lists&) = default;
};
using Model = std::map<std::string, Lists>;

class WordIndexTest : public ::testing::Test {
protected:
    WordIndexTest() { files.makeDirectories("C:\\out"); }

    void add(std::u16string_view text) { WordSplitter(index).split(text); }
    std::string written(const std::string& name) {
        index.write(DataFiles("C:\\out"));
        return files.content("C:\\out\\" + OrxString(name)).value_or("(none)");
    }

    MemoryFileSystem files;
    InstalledFileSystem inForce{files};
    WordIndex index;
};

TEST_F(WordIndexTest, WordsHaveTheirEntriesAndPages) {
    index.startPage(0);
    add(u"order line");
    index.startPage(2);
    add(u"orders line");
    index.startEntry(1, 2);
    add(u"Line");
    index.startEntry(0);
    add(u"order");
    EXPECT_EQ(written("word0.js"), "repNav(\"word0\",'\"Aline,B,AB;Aorder,A,A;Fs,,C;\"');\n");
    EXPECT_EQ(written("index.js"), "repNav(\"index\",'[\"line\"]');\n");
}

TEST_F(WordIndexTest, WordsAreInTheOrderOfTheirCodePoints) {
    index.startPage(0);
    add(u"z \U00020BB7 \u6771 \u00B5 \uFF9E");
    EXPECT_EQ(
        written("word0.js"),
        "repNav(\"word0\",'\"Az,,A;A\\\\u6771,,A;A\\\\uff9e,,A;A\\\\ud842\\\\udfb7,,A;\"');\n");
}

TEST_F(WordIndexTest, WordsShareNoHalfOfAPair) {
    index.startPage(0);
    add(u"a\U00010400 a\U00010401");
    EXPECT_EQ(written("word0.js"),
              "repNav(\"word0\",'\"Aa\\\\ud801\\\\udc00,,A;B\\\\ud801\\\\udc01,,A;\"');\n");
}

TEST_F(WordIndexTest, EntriesCanBeTakenUpAgain) {
    index.startEntry(3, 0);
    add(u"word");
    index.clearEntries();
    index.startEntry(1, 0);
    add(u"word");
    EXPECT_EQ(written("word0.js"), "repNav(\"word0\",'\"Aword,B,A;\"');\n");
}

TEST_F(WordIndexTest, AnEmptyIndexHasNoFilesOfWords) {
    EXPECT_EQ(written("index.js"), "repNav(\"index\",'[]');\n");
    EXPECT_EQ(written("word0.js"), "(none)");
}

TEST_F(WordIndexTest, AFileThatCannotBeWrittenIsLogged) {
    CapturingExceptionLog log;
    index.startPage(0);
    add(u"word");
    files.makeDirectories("C:\\out\\word0.js");
    EXPECT_NE(written("index.js"), "(none)");
    ASSERT_EQ(log.messages().size(), 1U);
    EXPECT_NE(log.messages()[0].find("Error opening file: C:\\out\\word0.js"), std::string::npos);
}

/// Reads the files of words back.
class WrittenIndex {
public:
    explicit WrittenIndex(const MemoryFileSystem& files) {
        for (int number = 0;; ++number) {
            const std::string name = "word" + std::to_string(number);
            const auto file = files.content("C:\\out\\" + OrxString(name) + ".js");
            if (!file.has_value()) {
                return;
            }
            const std::string opening = "repNav(\"" + name + "\",'\"";
            const std::string closing = "\"');\n";
            EXPECT_TRUE(file->starts_with(opening) && file->ends_with(closing));
            readFile(file->substr(opening.size(), file->size() - opening.size() - closing.size()));
            ++fileCount;
        }
    }

    Model words;
    int fileCount = 0;

private:
    static std::uint32_t valueOf(char c) {
        return static_cast<std::uint32_t>(number_list_text::alphabet.find(c));
    }

    static Numbers numbersIn(std::string_view list) {
        Numbers numbers;
        const bool areBits = list.starts_with('.');
        std::uint32_t expected = 0;
        std::uint32_t gap = 0;
        for (std::uint32_t at = areBits ? 1 : 0; at < list.size(); ++at) {
            const std::uint32_t value = valueOf(list[at]);
            for (std::uint32_t bit = 0; areBits && bit < 6; ++bit) {
                if ((value >> bit) % 2 == 1) {
                    numbers.insert((at - 1) * 6 + bit);
                }
            }
            gap = gap * 32 + value % 32;
            if (!areBits && value < 32) {
                numbers.insert(expected + gap);
                expected += gap + 1;
                gap = 0;
            }
        }
        return numbers;
    }

    void readFile(std::string_view text) {
        EXPECT_LE(text.size(), 32768U);
        std::string last;
        while (!text.empty()) {
            const std::size_t comma = text.find(',');
            const std::size_t second = text.find(',', comma + 1);
            const std::size_t end = text.find(';', second);
            std::string word = last.substr(0, valueOf(text.front()));
            word.append(text.substr(1, comma - 1));
            EXPECT_LT(last, word);
            words[word] = {numbersIn(text.substr(comma + 1, second - comma - 1)),
                           numbersIn(text.substr(second + 1, end - second - 1))};
            last = word;
            text.remove_prefix(end + 1);
        }
    }
};

TEST_F(WordIndexTest, RandomWordsAreWhereANaiveModelHasThem) {
    for (unsigned seed = 1; seed <= 6; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        const auto below = [&](std::uint32_t end) {
            return static_cast<std::uint32_t>(random() % end);
        };
        MemoryFileSystem own;
        own.makeDirectories("C:\\out");
        const InstalledFileSystem ownInForce(own);
        WordIndex words;
        Model model;
        for (std::uint32_t place = 0; place < 300; ++place) {
            const std::uint32_t page = below(200);
            const bool isEntry = below(3) == 0;
            isEntry ? words.startEntry(place, page) : words.startPage(page);
            for (std::uint32_t count = below(40); count > 0; --count) {
                std::string word = std::to_string(below(10 + 800 * seed));
                word.append(below(40), 'x');
                word.resize(std::min<std::size_t>(word.size(), 32));
                WordSplitter(words).split(utf8::toUtf16(word));
                model[word].pages.insert(page);
                if (isEntry) {
                    model[word].entries.insert(place);
                }
            }
        }
        words.write(DataFiles("C:\\out"));
        const WrittenIndex read(own);
        EXPECT_TRUE(read.words == model);
        EXPECT_EQ(words.wordCount(), model.size());
        EXPECT_GT(read.fileCount, seed > 4 ? 1 : 0);
    }
}

}  // namespace

}  // namespace quillmark
