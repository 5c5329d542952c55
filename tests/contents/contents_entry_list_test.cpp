#include "contents/entries/contents_entry_list.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "host/document_observer.h"

namespace quillmark {
namespace {

class EntryCounter final : public DocumentObserver {
public:
    EntryCounter() : before_(install(this)) {}
    EntryCounter(const EntryCounter&) = delete;
    EntryCounter& operator=(const EntryCounter&) = delete;
    ~EntryCounter() override { install(before_); }
    void contentsEntryAdded() override { ++entries; }

    int entries = 0;

private:
    DocumentObserver* before_;
};

struct Owned {
    std::string href;
    std::string text;
    std::int32_t level;
    std::string gif;
    std::string stereoGif;

    [[nodiscard]] ContentsEntryView view() const { return {href, text, level, gif, stereoGif}; }
};

void expectSame(const ContentsEntryView& entry, const Owned& expected) {
    EXPECT_EQ(entry.href, expected.href);
    EXPECT_EQ(entry.text, expected.text);
    EXPECT_EQ(entry.level, expected.level);
    EXPECT_EQ(entry.gif, expected.gif);
    EXPECT_EQ(entry.stereoGif, expected.stereoGif);
}

std::string randomText(std::mt19937& random, std::size_t longest) {
    std::string text(random() % (longest + 1), ' ');
    for (char& c : text) {
        c = static_cast<char>(random());
    }
    return text;
}

std::vector<Owned> randomEntries(std::size_t count) {
    std::mt19937 random(7);
    std::vector<Owned> entries;
    for (std::size_t i = 0; i < count; ++i) {
        entries.push_back({randomText(random, 40), randomText(random, 200),
                           static_cast<std::int32_t>(random()),
                           "icon" + std::to_string(random() % 9), randomText(random, 1)});
    }
    return entries;
}

TEST(ContentsEntryList, StartsEmpty) {
    const ContentsEntryList entries;
    EXPECT_TRUE(entries.isEmpty());
    EXPECT_EQ(entries.size(), 0U);
    EXPECT_EQ(entries.begin(), entries.end());
}

TEST(ContentsEntryList, KeepsEntriesInTheOrderMade) {
    ContentsEntryList entries;
    entries.add({.href = "a.htm#toc1", .text = "A", .level = 1});
    entries.add({.href = "a.htm#toc2", .text = "B", .level = 2, .gif = "B.gif"});
    ASSERT_EQ(entries.size(), 2U);
    EXPECT_FALSE(entries.isEmpty());
    expectSame(entries[0], {"a.htm#toc1", "A", 1, "", ""});
    expectSame(entries[1], {"a.htm#toc2", "B", 2, "B.gif", ""});
}

TEST(ContentsEntryList, TakesAndGivesWholeTags) {
    HtmlTOCTag tag;
    tag.setHref("a.htm#toc1");
    tag.setText("A");
    tag.setLevel(-5);
    tag.setGif("Class.gif");
    tag.setStereoGif("entity.gif");
    ContentsEntryList entries;
    entries.add(tag);
    const HtmlTOCTag copy = entries.tag(0);
    EXPECT_EQ(copy.getHref(), "a.htm#toc1");
    EXPECT_EQ(copy.getText(), "A");
    EXPECT_EQ(copy.getLevel(), -5);
    EXPECT_EQ(copy.getGif(), "Class.gif");
    EXPECT_EQ(copy.getStereoGif(), "entity.gif");
}

TEST(ContentsEntryList, GivesBackEveryByteOfEveryEntry) {
    const std::vector<Owned> expected = randomEntries(3000);
    ContentsEntryList entries;
    for (const Owned& entry : expected) {
        entries.add(entry.view());
    }
    ASSERT_EQ(entries.size(), expected.size());
    std::size_t index = 0;
    for (const ContentsEntryView entry : entries) {
        expectSame(entry, expected[index++]);
    }
    EXPECT_EQ(index, expected.size());
}

TEST(ContentsEntryList, HoldsTextsLongerThanItsOwnBlocks) {
    const Owned before{"a", "b", 1, "", ""};
    const Owned huge{std::string(100'000, 'h'), std::string(300'000, 't'), 2, "", ""};
    const Owned after{"c", "d", 3, "", ""};
    ContentsEntryList entries;
    for (const Owned* const entry : {&before, &huge, &after}) {
        entries.add(entry->view());
    }
    expectSame(entries[0], before);
    expectSame(entries[1], huge);
    expectSame(entries[2], after);
}

TEST(ContentsEntryList, HoldsMoreIconNamesThanSixteenBitsCount) {
    constexpr int count = 70'000;
    ContentsEntryList entries;
    for (int i = 0; i < count; ++i) {
        entries.add({.href = "h", .text = "t", .level = 1, .gif = std::to_string(i)});
    }
    EXPECT_EQ(entries[0].gif, "0");
    EXPECT_EQ(entries[count - 1].gif, "69999");
}

TEST(ContentsEntryList, KeepsEveryIconNameOnce) {
    ContentsEntryList entries;
    entries.add({.href = "h", .text = "t", .level = 1, .gif = "Class.gif"});
    entries.add({.href = "h", .text = "t", .level = 1, .stereoGif = "Class.gif"});
    EXPECT_EQ(entries[0].gif.data(), entries[1].stereoGif.data());
}

TEST(ContentsEntryList, IsEmptyAfterClearAndCanBeFilledAgain) {
    ContentsEntryList entries;
    entries.add({.href = "h", .text = "t", .level = 1, .gif = "Class.gif"});
    entries.clear();
    EXPECT_TRUE(entries.isEmpty());
    entries.add({.href = "i", .text = "u", .level = 2, .gif = "Class.gif"});
    ASSERT_EQ(entries.size(), 1U);
    expectSame(entries[0], {"i", "u", 2, "Class.gif", ""});
}

TEST(ContentsEntryList, CopiesAreIndependent) {
    const std::vector<Owned> expected = randomEntries(100);
    ContentsEntryList entries;
    for (const Owned& entry : expected) {
        entries.add(entry.view());
    }
    ContentsEntryList copy = entries;
    copy.add({.href = "more", .text = "more", .level = 1, .gif = "more.gif"});
    entries.clear();
    ASSERT_EQ(copy.size(), expected.size() + 1);
    for (std::size_t i = 0; i < expected.size(); ++i) {
        expectSame(copy[i], expected[i]);
    }
    EXPECT_EQ(copy[expected.size()].gif, "more.gif");
}

TEST(ContentsEntryList, NotifiesTheObserverOfEveryEntry) {
    EntryCounter counter;
    ContentsEntryList entries;
    entries.add({.href = "h", .text = "t", .level = 1});
    entries.add(HtmlTOCTag());
    EXPECT_EQ(counter.entries, 2);
    entries.clear();
    EXPECT_EQ(counter.entries, 2);
}

}  // namespace
}  // namespace quillmark
