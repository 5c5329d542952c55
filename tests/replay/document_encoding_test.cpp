#include "replay/play/document_encoding.h"

#include <gtest/gtest.h>

#include "support/memory_settings_store.h"

namespace quillmark::replay {
namespace {

class DocumentEncodingTest : public ::testing::Test {
protected:
    void store(const char* charSet) {
        static_cast<void>(store_->write("Html", "CharSet", charSet));
    }
    void override(std::u16string_view value, std::u16string_view name = u"CharSet",
                  std::u16string_view group = u"Html") {
        Call call;
        call.arguments = {group, name, value, std::int64_t{2}};
        encoding.override(call);
    }
    [[nodiscard]] bool isUtf8() const { return &encoding.current() == &TextEncoding::utf8(); }

private:
    std::shared_ptr<MemorySettingsStore> store_ = std::make_shared<MemorySettingsStore>();

protected:
    DocumentEncoding encoding{store_};
};

TEST_F(DocumentEncodingTest, IsTheCodePageWithoutTheSetting) {
    encoding.startObject();
    encoding.create();
    EXPECT_FALSE(isUtf8());
    EXPECT_EQ(&DocumentEncoding(nullptr).next(), &TextEncoding::codePage());
}

TEST_F(DocumentEncodingTest, IsReadWhenTheObjectIsMade) {
    store("utf-8");
    EXPECT_FALSE(isUtf8());
    encoding.startObject();
    EXPECT_TRUE(isUtf8());
}

TEST_F(DocumentEncodingTest, IsReadAgainByCreate) {
    encoding.startObject();
    store("UTF-8");
    EXPECT_FALSE(isUtf8());
    EXPECT_EQ(&encoding.next(), &TextEncoding::utf8());
    encoding.create();
    EXPECT_TRUE(isUtf8());
}

TEST_F(DocumentEncodingTest, FollowsAnOverrideFromTheNextCreateOn) {
    encoding.startObject();
    override(u"UTF-8", u"charset", u"HTML");
    EXPECT_FALSE(isUtf8());
    encoding.create();
    EXPECT_TRUE(isUtf8());
    override(u"");
    EXPECT_TRUE(isUtf8());
    encoding.create();
    EXPECT_FALSE(isUtf8());
}

TEST_F(DocumentEncodingTest, PrefersTheOverrideToTheStore) {
    store("UTF-8");
    encoding.startObject();
    override(u"8 bits");
    encoding.create();
    EXPECT_FALSE(isUtf8());
}

TEST_F(DocumentEncodingTest, ForgetsTheOverrideWithItsObject) {
    encoding.startObject();
    override(u"UTF-8");
    encoding.create();
    encoding.startObject();
    EXPECT_FALSE(isUtf8());
    encoding.create();
    EXPECT_FALSE(isUtf8());
}

TEST_F(DocumentEncodingTest, IgnoresOverridesOfOtherSettings) {
    encoding.startObject();
    override(u"UTF-8", u"BodyTags");
    override(u"UTF-8", u"CharSet", u"Settings");
    override(u"UTF-8 ");
    encoding.create();
    EXPECT_FALSE(isUtf8());
}

}  // namespace
}  // namespace quillmark::replay
