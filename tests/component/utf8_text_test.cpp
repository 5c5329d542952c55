#include <gtest/gtest.h>

#include "dochtml/client.h"
#include "dochtml/dochtml_c.h"

namespace quillmark::testing {
namespace {

std::u16string converted(std::string_view utf8) {
    return std::u16string(textFromUtf8(utf8).view());
}

TEST(TextFromUtf8, KeepsEveryCharacter) {
    EXPECT_EQ(converted(""), u"");
    EXPECT_EQ(converted("abc"), u"abc");
    EXPECT_EQ(converted("Z\xC3\xBCrich"), u"Z\u00FCrich");
    EXPECT_EQ(converted("\xE2\x82\xAC"), u"\u20AC");
    EXPECT_EQ(converted("\xF0\x9F\x93\x84"), u"\U0001F4C4");
    EXPECT_EQ(converted(std::string_view("a\0b", 3)), std::u16string(u"a\0b", 3));
}

TEST(TextFromUtf8, ReplacesInvalidUtf8) {
    EXPECT_EQ(converted("a\xFCz"), u"a\uFFFDz");
    EXPECT_EQ(converted("\xE2\x82"), u"\uFFFD\uFFFD");
    EXPECT_EQ(converted("\xC0\x80"), u"\uFFFD\uFFFD");
    EXPECT_EQ(converted("\xED\xA0\x80"), u"\uFFFD\uFFFD\uFFFD");
    EXPECT_EQ(converted("\xF4\x90\x80\x80"), u"\uFFFD\uFFFD\uFFFD\uFFFD");
    EXPECT_EQ(converted("\xE0\x80\x80"), u"\uFFFD\uFFFD\uFFFD");
}

TEST(CHost, OwnsTheTextsThatItConverts) {
    BSTR text = dochtml_text_from_utf8("Z\xC3\xBCrich");
    EXPECT_EQ(Text::viewOf(text), u"Z\u00FCrich");
    SysFreeString(text);
    text = dochtml_text_from_utf8(nullptr);
    EXPECT_EQ(SysStringLen(text), 0U);
    SysFreeString(text);
}

TEST(CHost, MustPassNamesAndPlacesForResults) {
    DochtmlDocument* document = nullptr;
    DochtmlHostServices* services = nullptr;
    EXPECT_EQ(dochtml_create_document(nullptr, &document), E_POINTER);
    EXPECT_EQ(dochtml_create_document("DocHtml.DocHtml", nullptr), E_POINTER);
    EXPECT_EQ(dochtml_host_services(nullptr, &services), E_POINTER);
    EXPECT_TRUE(FAILED(dochtml_create_document_from("/no/such/library", &document)));
    EXPECT_EQ(document, nullptr);
}

}  // namespace
}  // namespace quillmark::testing
