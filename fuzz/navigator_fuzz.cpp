// The script navigator's files for pages and entries with any bytes: what the builder writes is
// read back by another reader, and is what a naive builder finds.

#include <algorithm>
#include <charconv>
#include <string>
#include <string_view>
#include <vector>

#include "contents/entries/contents_entry_list.h"
#include "foundation/utf8.h"
#include "navigator/collected_words.h"
#include "navigator/navigator.h"
#include "navigator/text/html_tags.h"
#include "navigator/text/plain_text.h"
#include "navigator/text/word_splitter.h"
#include "navigator/utf8_decoder.h"
#include "support/byte_source.h"
#include "support/fields.h"
#include "support/installed_file_system.h"
#include "support/memory_file_system.h"
#include "support/navigator_files.h"
#include "support/require.h"

namespace quillmark::fuzzing {
namespace {

struct Page {
    std::uint32_t number;
    std::string html;
};

struct OwnEntry {
    std::int32_t level;
    std::uint32_t page;
    std::string text;
    std::string gif;
    std::string stereoGif;

    static constexpr std::uint32_t elsewhere = 3000;
    static constexpr std::uint32_t escaped = 2999;

    /// The entry of a file that is no page of the set has the highest number.
    [[nodiscard]] bool isOnPage() const { return page != elsewhere; }
    [[nodiscard]] std::string href(std::size_t index) const {
        if (!isOnPage()) {
            return "other.htm#toc" + std::to_string(index + 1);
        }
        if (page == escaped) {
            return "sub/rep%5Fdtl2999.htm#toc" + std::to_string(index + 1);
        }
        return "rep_dtl" + (page == 1 ? std::string() : std::to_string(page)) + ".htm#toc" +
               std::to_string(index + 1);
    }
};

/// A document set: lines such as "page 3 HTML", "entry 2 1 text gif stereotype", with tabs.
struct DocumentSet {
    explicit DocumentSet(std::string_view input);

    std::vector<Page> pages;
    std::vector<OwnEntry> entries;
    std::string title;
    bool isUtf8 = false;
};

std::uint32_t numberIn(const std::string& field) {
    constexpr std::uint32_t most = 3000;
    std::uint32_t number = 0;
    std::from_chars(field.data(), field.data() + field.size(), number);
    return number % most + 1;
}

DocumentSet::DocumentSet(std::string_view input) {
    ByteSource lines(reinterpret_cast<const std::uint8_t*>(input.data()), input.size());
    while (!lines.atEnd()) {
        std::vector<std::string> fields = fieldsOf(lines.line());
        fields.resize(std::max<std::size_t>(fields.size(), 6));
        if (fields[0] == "page") {
            pages.push_back({numberIn(fields[1]), fields[2]});
        } else if (fields[0] == "entry") {
            const auto level = static_cast<std::int32_t>(numberIn(fields[1]) % 40) - 2;
            entries.push_back({level, numberIn(fields[2]), fields[3], fields[4], fields[5]});
        } else if (fields[0] == "title") {
            title = fields[1];
        } else if (fields[0] == "utf8") {
            isUtf8 = true;
        }
    }
}

std::unique_ptr<const TextDecoder> decoderOf(const DocumentSet& set) {
    if (set.isUtf8) {
        return std::make_unique<testing::Utf8Decoder>();
    }
    return std::make_unique<DocumentDecoder>(TextEncoding::codePage());
}

/// The words of a page, found the long way.
std::vector<std::string> wordsOf(const std::string& html, const TextDecoder& decoder) {
    testing::CollectedWords collected;
    WordSplitter splitter(collected);
    std::string text;
    const auto endText = [&] {
        std::u16string decoded;
        std::u16string plain;
        decoder.append(decoded, text);
        plain_text::appendDecoded(plain, decoded);
        splitter.split(plain);
        text.clear();
    };
    for (std::size_t at = html_tags::bodyStart(html); at < html.size();) {
        const std::size_t end = html[at] == '<' ? html_tags::endAt(html, at) : at;
        if (end > at) {
            endText();
            at = end;
        } else {
            text.push_back(html[at++]);
        }
    }
    endText();
    return collected.words;
}

std::vector<std::string> wordsOfEntry(const OwnEntry& entry, const TextDecoder& decoder) {
    testing::CollectedWords collected;
    WordSplitter(collected, WordSplitter::Within::alsoWithin)
        .split(plain_text::ofHtml(entry.text, decoder));
    return collected.words;
}

/// The entries' levels as the tree has them.
std::vector<std::uint32_t> levelsOf(const DocumentSet& set) {
    constexpr std::int32_t deepest = 32;
    std::vector<std::uint32_t> levels;
    std::int32_t before = 0;
    for (const OwnEntry& entry : set.entries) {
        before = std::min({std::max(entry.level, 1), before + 1, deepest});
        levels.push_back(static_cast<std::uint32_t>(before));
    }
    return levels;
}

/// Entries get their numbers level by level.
std::vector<std::uint32_t> numbersOf(const std::vector<std::uint32_t>& levels) {
    std::vector<std::uint32_t> order(levels.size());
    for (std::uint32_t index = 0; index < order.size(); ++index) {
        order[index] = index;
    }
    std::ranges::stable_sort(order, {}, [&](std::uint32_t index) { return levels[index]; });
    std::vector<std::uint32_t> numbers(levels.size());
    for (std::uint32_t number = 0; number < order.size(); ++number) {
        numbers[order[number]] = number;
    }
    return numbers;
}

NavigatorFiles::Words expectedWords(const DocumentSet& set, const TextDecoder& decoder) {
    NavigatorFiles::Words words;
    for (const Page& page : set.pages) {
        for (const std::string& word : wordsOf(page.html, decoder)) {
            words[utf8::toUtf16(word)].pages.insert(page.number - 1);
        }
    }
    const std::vector<std::uint32_t> numbers = numbersOf(levelsOf(set));
    for (std::size_t index = 0; index < set.entries.size(); ++index) {
        for (const std::string& word : wordsOfEntry(set.entries[index], decoder)) {
            NavigatorFiles::Places& places = words[utf8::toUtf16(word)];
            places.entries.insert(numbers[index]);
            if (set.entries[index].isOnPage()) {
                places.pages.insert(set.entries[index].page - 1);
            }
        }
    }
    return words;
}

void build(const DocumentSet& set, int times) {
    Navigator navigator({.baseName = "C:\\out\\rep",
                         .extension = ".htm",
                         .supportDir = "C:\\inst\\navigator",
                         .iconDir = "C:\\icons"},
                        decoderOf(set), Trace());
    static_cast<void>(navigator.headLines("C:\\out\\sub"));
    for (const Page& page : set.pages) {
        // In two pieces, as a page with a link is.
        const std::string_view html = page.html;
        const std::array pieces = {html.substr(0, html.size() / 2), html.substr(html.size() / 2)};
        navigator.read(page.number, pieces);
    }
    ContentsEntryList entries;
    for (std::size_t index = 0; index < set.entries.size(); ++index) {
        const OwnEntry& entry = set.entries[index];
        const std::string href = entry.href(index);
        entries.add({.href = href,
                     .text = entry.text,
                     .level = entry.level,
                     .gif = entry.gif,
                     .stereoGif = entry.stereoGif});
    }
    for (; times > 0; --times) {
        navigator.write({.title = set.title, .bodyTags = "", .styleSheetLink = ""}, entries,
                        Trace());
    }
}

void checkEntries(const NavigatorFiles& files, const DocumentSet& set, const TextDecoder& decoder) {
    const std::vector<NavigatorFiles::Entry> entries = files.entries();
    const std::vector<std::uint32_t> levels = levelsOf(set);
    require(entries.size() == set.entries.size(), "every entry is written");
    for (std::size_t index = 0; index < entries.size(); ++index) {
        const OwnEntry& own = set.entries[index];
        require(entries[index].level == levels[index], "an entry is at its level");
        require(entries[index].text == plain_text::ofHtml(own.text, decoder), "with its text");
        require(entries[index].href == utf8::toUtf16(own.href(index)), "and its link");
    }
}

void checkTables(const NavigatorFiles& files, const DocumentSet& set) {
    const std::vector<std::uint32_t> numbers = numbersOf(levelsOf(set));
    require(files.table("anchor") == numbers, "anchors lead to their entries");
    const std::vector<std::uint32_t> pages = files.table("page");
    for (std::size_t index = set.entries.size(); index > 0; --index) {
        const std::uint32_t page = set.entries[index - 1].page;
        if (!set.entries[index - 1].isOnPage()) {
            continue;
        }
        const bool isFirst =
            std::ranges::none_of(std::span(set.entries).first(index - 1),
                                 [&](const OwnEntry& entry) { return entry.page == page; });
        require(page <= pages.size(), "a page with an entry is in the table");
        require(!isFirst || pages[page - 1] == numbers[index - 1], "with its first entry");
    }
}

}  // namespace
}  // namespace quillmark::fuzzing

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace quillmark;
    using namespace quillmark::fuzzing;
    const DocumentSet set(ByteSource(data, size).rest());
    MemoryFileSystem files;
    const InstalledFileSystem installed(files);
    files.makeDirectories("C:\\out\\rep_nav");
    files.put("C:\\icons\\Class.gif", "gif");
    files.put("C:\\inst\\navigator\\icons\\Package.gif", "gif");
    build(set, size % 8 == 0 ? 2 : 1);
    const auto decoder = decoderOf(set);
    const NavigatorFiles written(files, "C:\\out\\rep_nav\\");
    written.checkAll();
    require(written.words() == expectedWords(set, *decoder), "the index has every word");
    checkEntries(written, set, *decoder);
    checkTables(written, set);
    return 0;
}
