// What a structure is after an allocation has failed in it: as before, or without the last output.

#include <gmock/gmock.h>

#include <array>
#include <filesystem>
#include <memory>
#include <new>
#include <stdexcept>
#include <string>
#include <vector>

#include "contents/entries/contents_entry_list.h"
#include "driver/doc_html.h"
#include "driver/links/bookmark_table.h"
#include "faults/allocation_failure.h"
#include "foundation/name_table.h"
#include "foundation/packed_strings.h"
#include "foundation/pooled_lists.h"
#include "navigator/index/postings.h"
#include "navigator/index/word_table.h"
#include "page/doc_html_page.h"
#include "page/links/cached_link.h"
#include "page/marks/open_marks.h"
#include "page/marks/splice_text.h"
#include "replay/input/host_files/image_map_file.h"
#include "settings/settings_store.h"
#include "support/installed_file_system.h"
#include "support/memory_file_system.h"
#include "support/memory_settings_store.h"
#include "support/temp_dir.h"

namespace quillmark::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

/// A name that needs memory of its own, wherever it is kept.
std::string longName(int number) {
    return "a name that is longer than a short string " + std::to_string(number);
}

/// Runs `change` on a new object, with every allocation in it failing in turn, and then `check`.
template <typename Object, typename Change, typename Check>
void failEverywhere(const Change& change, const Check& check) {
    const std::size_t failures = forEachAllocation([&](std::size_t position) {
        Object object;
        bool happened = false;
        {
            const AllocationFailure failure(position);
            try {
                change(object);
            } catch (const std::bad_alloc&) {
                happened = true;
            }
        }
        check(object);
        return happened;
    });
    EXPECT_GT(failures, 0U);
}

TEST(AfterAFailedAllocation, PackedStringsHaveTheirStringsAndNoMore) {
    failEverywhere<PackedStrings>(
        [](PackedStrings& strings) {
            for (int i = 0; i < 9; ++i) {
                strings.add(longName(i));
            }
        },
        [](PackedStrings& strings) {
            const auto next = strings.add("next");
            EXPECT_EQ(strings[next], "next");
            for (std::uint32_t i = 0; i < next; ++i) {
                EXPECT_EQ(strings[i], longName(static_cast<int>(i)));
            }
        });
}

TEST(AfterAFailedAllocation, ANameTableFindsItsNamesAndGoesOnCounting) {
    failEverywhere<NameTable>(
        [](NameTable& names) {
            for (int i = 0; i < 40; ++i) {
                names.add(longName(i));
            }
        },
        [](NameTable& names) {
            const auto size = static_cast<NameTable::Id>(names.size());
            for (NameTable::Id id = 0; id < size; ++id) {
                EXPECT_EQ(names.find(longName(static_cast<int>(id))), id);
            }
            EXPECT_EQ(names.find("another"), NameTable::none);
            EXPECT_EQ(names.add("another"), size);
            EXPECT_EQ(names.name(size), "another");
        });
}

TEST(AfterAFailedAllocation, ABookmarkTableHasARecordForEachName) {
    failEverywhere<BookmarkTable>(
        [](BookmarkTable& table) {
            for (int i = 0; i < 20; ++i) {
                table.define(table.add(longName(i)), "page" + std::to_string(i / 2));
            }
        },
        [](BookmarkTable& table) {
            for (int i = 0; i < 40; ++i) {
                const BookmarkTable::Id id = table.add(longName(i));
                EXPECT_EQ(table.name(id), longName(i));
                EXPECT_TRUE(i == 0 || id > 0);
                if (!table.isDefined(id)) {
                    table.define(id, "later");
                }
                EXPECT_EQ(table.reference(id).view().substr(table.pageFile(id).size()),
                          "#" + longName(i));
            }
        });
}

TEST(AfterAFailedAllocation, OpenMarksHaveAListForEachName) {
    failEverywhere<OpenMarks>(
        [](OpenMarks& marks) {
            for (int i = 0; i < 20; ++i) {
                marks.add(longName(i), static_cast<OpenMarks::MarkId>(i));
            }
        },
        [](OpenMarks& marks) {
            std::size_t found = 0;
            for (int i = 0; i < 20; ++i) {
                marks.add(longName(i), 77);
                std::vector<OpenMarks::MarkId> taken;
                marks.take(longName(i), [&](OpenMarks::MarkId mark) { taken.push_back(mark); });
                EXPECT_EQ(taken.back(), 77U);
                found += taken.size();
            }
            EXPECT_LE(found, 40U);
            EXPECT_EQ(marks.size(), 0U);
        });
}

TEST(AfterAFailedAllocation, APooledListIsAsBefore) {
    PooledLists<int> pool;
    PooledLists<int>::List list;
    for (const int number : {1, 2, 3}) {
        pool.append(list, number);
    }
    std::vector<int> seen;
    EXPECT_THROW(pool.take(list,
                           [&](int number) {
                               if (number == 2) {
                                   throw std::bad_alloc();
                               }
                               seen.push_back(number);
                           }),
                 std::bad_alloc);
    EXPECT_THAT(seen, ElementsAre(1));
    seen.clear();
    pool.append(list, 4);
    pool.take(list, [&](int number) { seen.push_back(number); });
    EXPECT_THAT(seen, ElementsAre(2, 3, 4));
}

TEST(AfterAFailedAllocation, ATextHasWhatWasAppended) {
    failEverywhere<SpliceText>(
        [](SpliceText& text) { text.append(longName(1)); },
        [](const SpliceText& text) { EXPECT_EQ(text.lineCount(), text.plain().empty() ? 0 : 1); });
}

TEST(AfterAFailedAllocation, ATextHasItsMarks) {
    failEverywhere<SpliceText>(
        [](SpliceText& text) {
            for (int i = 0; i < 5; ++i) {
                text.fill(text.addMark(longName(i), 1), 0, 6, {"(", longName(7), ")"});
                text.append(".");
            }
        },
        [](SpliceText& text) {
            text.append("|");
            const SpliceText::MarkId mark = text.addMark("", 1);
            text.insertAt(mark, "end");
            const std::string merged = text.merged();
            EXPECT_TRUE(merged.ends_with("|end")) << merged;
            const std::string filled = "(" + longName(7) + ")" + longName(0).substr(6) + ".";
            EXPECT_TRUE(merged.size() < 40 || merged.starts_with(filled)) << merged;
        });
}

TEST(AfterAFailedAllocation, AFailedInsertionLeavesAPlainText) {
    failEverywhere<SpliceText>(
        [](SpliceText& text) { text.insertAt(text.addMark("", 1), longName(1)); },
        [](const SpliceText& text) { EXPECT_EQ(text.isPlain(), text.merged().empty()); });
}

TEST(AfterAFailedAllocation, ACachedLinkIsTheRightOne) {
    const OrxString base("C:\\a directory with a long name\\and a subdirectory");
    const auto fileName = [](std::size_t number) { return std::string(40 * number, 'f'); };
    const auto file = [&](std::size_t number) {
        return "C:\\a directory with a long name\\" + OrxString(fileName(number));
    };
    failEverywhere<CachedLink>(
        [&](CachedLink& link) {
            static_cast<void>(link.relativeFile(file(1), base));
            static_cast<void>(link.relativeFile(file(2), base));
        },
        [&](CachedLink& link) {
            EXPECT_EQ(link.relativeFile(file(1), base), OrxString("../" + fileName(1)));
            EXPECT_EQ(link.relativeFile(file(2), base), OrxString("../" + fileName(2)));
        });
}

TEST(AfterAFailedAllocation, AListOfContentsEntriesHasWholeEntries) {
    const auto entry = [](const std::string& href, const std::string& text,
                          const std::string& icon) {
        return ContentsEntryView{href, text, 1, icon, icon};
    };
    failEverywhere<ContentsEntryList>(
        [&](ContentsEntryList& list) {
            for (int i = 0; i < 5; ++i) {
                list.add(entry("href" + longName(i), longName(i), "icon" + longName(i)));
            }
        },
        [&](ContentsEntryList& list) {
            const std::size_t size = list.size();
            list.add(entry("last", "text", "icon" + longName(0)));
            ASSERT_EQ(list.size(), size + 1);
            EXPECT_EQ(list[size].href, "last");
            EXPECT_EQ(list[size].gif, "icon" + longName(0));
            for (std::size_t i = 0; i < size; ++i) {
                EXPECT_EQ(list[i].text, longName(static_cast<int>(i)));
                EXPECT_EQ(list[i].stereoGif, "icon" + longName(static_cast<int>(i)));
            }
        });
}

TEST(AfterAFailedAllocation, ATableOfWordsHasWholeWords) {
    failEverywhere<WordTable>(
        [](WordTable& words) {
            for (int i = 0; i < 20; ++i) {
                words.add(longName(i));
            }
        },
        [](WordTable& words) {
            const auto next = words.add("next");
            EXPECT_EQ(words.word(next), "next");
            for (WordTable::Id id = 0; id < next; ++id) {
                EXPECT_EQ(words.word(id), longName(static_cast<int>(id)));
            }
        });
}

TEST(AfterAFailedAllocation, APlaceCanStillGetItsWord) {
    static constexpr std::array<std::uint32_t, 1> word = {0};
    failEverywhere<Postings>(
        [](Postings& postings) {
            postings.startPlace(4);
            postings.add(word);
        },
        [](Postings& postings) {
            if (postings.pairs() == 0) {
                postings.startPlace(4);
                postings.add(word);
            }
            EXPECT_EQ(postings.pairs(), 1U);
        });
}

TEST(AfterAFailedAllocation, APageThatWasClosedIsEmpty) {
    failEverywhere<DocHtmlPage>(
        [](DocHtmlPage& page) {
            page.append("some text on a page, somewhat longer");
            page.setStyleSheet("a style sheet with a long name.css");
            page.close();
        },
        [](DocHtmlPage& page) {
            page.close();
            EXPECT_TRUE(page.isEmpty());
            EXPECT_FALSE(page.hasMarks());
        });
}

TEST(AfterAFailedAllocation, APictureHasAllItsRegionsOrTheyAreReadAgain) {
    const TempDir dir;
    dir.put("maps.json", R"({"a.gif": ["a name", "a target", "1,2,3,4,5,6,7,8"],
                             "another picture with a long name.gif": ["b", "b", "1,1,2,2"]})");
    const std::filesystem::path file = dir.nativeFile("maps.json");
    forEachAllocation([&](std::size_t position) {
        replay::ImageMapFile maps(file, "maps.json");
        bool happened = false;
        {
            const AllocationFailure failure(position);
            std::vector<OrxString> regions;
            try {
                maps.getRegions("a.gif", regions);
            } catch (const std::bad_alloc&) {
                happened = true;
            }
        }
        std::vector<OrxString> regions;
        maps.getRegions("a.gif", regions);
        EXPECT_THAT(regions, ElementsAre("a name", "a target", "1,2,3,4,5,6,7,8")) << position;
        return happened;
    });
}

TEST(AfterAFailedAllocation, ADocumentInAnotherEncodingHasTheTitleAndTheHeaderOfTheOneBefore) {
    MemoryFileSystem files;
    const InstalledFileSystem installed(files);
    InstalledSettingsStore settings;
    settings.set("Html", "Navig", "4");
    settings.set("Html", "StyleSheet", "");
    forEachAllocation([&](std::size_t position) {
        DocHtml document;
        document.create(u"C:\\out\\a.htm");
        document.setOption(u"title", u"Gr\u00F6\u00DFen einer l\u00E4ngeren \u00DCbersicht");
        document.startHeader();
        document.insertText(u"\u00C4hnliches in jeder Kopfzeile der Seiten");
        document.endHeader();
        document.close();
        document.overrideRegistry(u"Html", u"CharSet", u"UTF-8", 2);
        bool happened = false;
        {
            const AllocationFailure failure(position);
            document.create(u"C:\\out\\b.htm");
            happened = AllocationFailure::hasHappened();
        }
        document.create(u"C:\\out\\c.htm");
        document.insertText(u"text");
        document.close();
        const std::string page = files.content("C:\\out\\c.htm").value_or("");
        EXPECT_THAT(page, HasSubstr("Gr\xC3\xB6\xC3\x9F"
                                    "en einer l\xC3\xA4ngeren"))
            << position;
        EXPECT_THAT(page, HasSubstr("\xC3\x84hnliches in jeder")) << position;
        files.deleteFile("C:\\out\\c.htm");
        return happened;
    });
}

TEST(AfterAFailedAllocation, ASettingsFileIsReadAgain) {
    MemoryFileSystem files;
    const InstalledFileSystem installed(files);
    const OrxString place = "C:\\conf\\settings.ini";
    forEachAllocation([&](std::size_t position) {
        files.put(place, "[Html]\nBodyTags=the text of the first version of the file\n");
        const std::shared_ptr<SettingsStore> store = makeIniSettingsStore(place);
        static_cast<void>(store->read("Html", "BodyTags"));
        files.put(place, "\xEF\xBB\xBF[Html]\r\nBodyTags=the text of the second one\r\n");
        bool happened = false;
        {
            const AllocationFailure failure(position);
            try {
                static_cast<void>(store->read("Html", "BodyTags"));
            } catch (const std::bad_alloc&) {
                happened = true;
            }
        }
        EXPECT_EQ(store->read("Html", "BodyTags"), "the text of the second one") << position;
        EXPECT_TRUE(store->write("Html", "Navig", "2"));
        EXPECT_EQ(files.content(place),
                  "\xEF\xBB\xBF[Html]\r\nBodyTags=the text of the second "
                  "one\r\nNavig=2\r\n");
        return happened;
    });
}

}  // namespace
}  // namespace quillmark::testing
