#include "platform/text_encoding.h"

#include <gtest/gtest.h>

#include <string>

#include "support/installed_file_system.h"
#include "support/memory_file_system.h"

namespace quillmark {
namespace {

TEST(TextEncoding, IsUtf8ForThatNameInAnyCase) {
    for (const char* const name : {"UTF-8", "utf-8", "Utf-8"}) {
        EXPECT_EQ(&TextEncoding::named(name), &TextEncoding::utf8());
    }
    for (const char* const name : {"", "UTF8", " UTF-8", "UTF-8 ", "iso-8859-1"}) {
        EXPECT_EQ(&TextEncoding::named(name), &TextEncoding::codePage()) << name;
    }
}

TEST(TextEncoding, IsInForceForItsScope) {
    EXPECT_EQ(&TextEncoding::current(), &TextEncoding::codePage());
    {
        const TextEncoding::Scope document(TextEncoding::utf8());
        const TextEncoding::Scope another(TextEncoding::codePage());
        EXPECT_EQ(&TextEncoding::current(), &TextEncoding::codePage());
    }
    EXPECT_EQ(&TextEncoding::current(), &TextEncoding::codePage());
}

TEST(TextEncoding, KeepsEveryCharacterInUtf8) {
    const TextEncoding& utf8 = TextEncoding::utf8();
    EXPECT_EQ(utf8.toBytes(u"a\u00E9\u4EF7\U0001F600"), "a\xC3\xA9\xE4\xBB\xB7\xF0\x9F\x98\x80");
    EXPECT_EQ(utf8.toUtf16("\xE4\xBB\xB7"), u"\u4EF7");
    EXPECT_EQ(utf8.toBytes(std::u16string(1, u'\0') + u"\uFEFF\uFFFE"),
              std::string(1, '\0') + "\xEF\xBB\xBF\xEF\xBF\xBE");
}

TEST(TextEncoding, ReplacesEachHalfOfAPair) {
    const std::u16string halves = {0xD83D, 0xD83D, 0xDE00, 0xDE00, u'a', 0xD83D};
    EXPECT_EQ(TextEncoding::utf8().toBytes(halves),
              "\xEF\xBF\xBD\xF0\x9F\x98\x80\xEF\xBF\xBD"
              "a\xEF\xBF\xBD");
    EXPECT_EQ(TextEncoding::utf8().countLost(halves), 3U);
    EXPECT_FALSE(TextEncoding::utf8().holds(halves));
}

TEST(TextEncoding, RecodesBetweenDocuments) {
    const TextEncoding& utf8 = TextEncoding::utf8();
    const TextEncoding& codePage = TextEncoding::codePage();
    EXPECT_EQ(utf8.recoded("\xE4", codePage), "\xC3\xA4");
    EXPECT_EQ(codePage.recoded("\xC3\xA4\xE4\xBB\xB7", utf8), "\xE4?");
    EXPECT_EQ(codePage.recoded("\xC3\xA4", codePage), "\xC3\xA4");
    EXPECT_EQ(utf8.fromUtf8("a\xFF"), "a\xEF\xBF\xBD");
}

TEST(TextEncoding, OfATextThatDoesNotKnowTheDocumentIsUtf8WhereItIsValid) {
    const TextEncoding& utf8 = TextEncoding::utf8();
    EXPECT_EQ(&utf8.ofText("\xC3\xA4"), &utf8);
    EXPECT_EQ(&utf8.ofText(""), &utf8);
    for (const char* const text : {"\xE4", "\xC3", "\xED\xA0\x80", "\xC0\x80"}) {
        EXPECT_EQ(&utf8.ofText(text), &TextEncoding::codePage()) << text;
    }
    EXPECT_EQ(&TextEncoding::codePage().ofText("\xC3\xA4"), &TextEncoding::codePage());
}

TEST(TextEncoding, EncodesInLinksWhatABrowserNeeds) {
    EXPECT_EQ(TextEncoding::utf8().inLink("a b/\xE4\xBB\xB7%#?&~+.gif"),
              "a b/%E4%BB%B7%25%23%3F&~+.gif");
    EXPECT_EQ(TextEncoding::codePage().inLink("a b/\xE4%#?.gif"), "a b/\xE4%#?.gif");
}

TEST(TextEncoding, TakesAFileAsUtf8WhenAllOfItIs) {
    MemoryFileSystem files;
    const InstalledFileSystem installed(files);
    const auto encodingOf = [&files](const std::string& bytes) {
        files.put("a", bytes);
        return &TextEncoding::utf8().ofFile("a");
    };
    const TextEncoding* const utf8 = &TextEncoding::utf8();
    const TextEncoding* const codePage = &TextEncoding::codePage();
    EXPECT_EQ(encodingOf(""), utf8);
    EXPECT_EQ(encodingOf("a\xC3\xA4"), utf8);
    EXPECT_EQ(encodingOf("\xC3\xA4\xE4"), codePage);
    EXPECT_EQ(encodingOf("\xC3\xA4\xE4\xBB"), codePage);
    EXPECT_EQ(encodingOf("\xED\xA0\x80"), codePage) << "half a pair";
    // A character that lies across two reads.
    for (std::size_t before = 16380; before <= 16384; ++before) {
        EXPECT_EQ(encodingOf(std::string(before, 'a') + "\xF0\x9F\x98\x80z"), utf8) << before;
        EXPECT_EQ(encodingOf(std::string(before, 'a') + "\xF0\x9F\x98z"), codePage) << before;
    }
    EXPECT_EQ(&TextEncoding::codePage().ofFile("a"), codePage);
}

TEST(CodePageEncoding, SaysWhatItCanHold) {
    EXPECT_TRUE(TextEncoding::codePage().holds(u""));
    EXPECT_TRUE(TextEncoding::codePage().holds(u"a?b\u20AC\u00FC"));
    EXPECT_TRUE(TextEncoding::codePage().holds(std::u16string_view(u"a\0b", 3)));
    EXPECT_FALSE(TextEncoding::codePage().holds(u"a\u4E2D"));
    EXPECT_FALSE(TextEncoding::codePage().holds(u"\u0100"));
    EXPECT_FALSE(TextEncoding::codePage().holds(u"\U0001F600"));
    EXPECT_FALSE(TextEncoding::codePage().holds(std::u16string(1, u'\xD83D')));
}

TEST(CodePageEncoding, CountsTheCharactersThatItLoses) {
    EXPECT_EQ(TextEncoding::codePage().countLost(u""), 0U);
    EXPECT_EQ(TextEncoding::codePage().countLost(u"a?\u20AC"), 0U);
    EXPECT_EQ(TextEncoding::codePage().countLost(u"\u4E2Da\u20AC\u6587"), 2U);
    EXPECT_EQ(TextEncoding::codePage().countLost(u"\U0001F600\U0001F600"), 2U);
    EXPECT_EQ(TextEncoding::codePage().countLost(std::u16string{u'\xD83D', u'x', u'\xDE00'}), 2U);
}

TEST(CodePageEncoding, ConvertsFromAndToUtf8) {
    EXPECT_EQ(TextEncoding::codePage().fromUtf8("a\xE2\x82\xAC"), "a\x80");
    EXPECT_EQ(TextEncoding::codePage().toUtf8("a\x80"), "a\xE2\x82\xAC");
}

}  // namespace
}  // namespace quillmark
