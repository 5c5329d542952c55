#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string_view>

#include "contents/entries/contents_entry_list.h"
#include "foundation/orx_string.h"
#include "navigator/data/data_files.h"
#include "navigator/entries/page_names.h"
#include "navigator/index/word_index.h"
#include "navigator/text/page_words.h"
#include "navigator/text/text_decoder.h"
#include "page/links/cached_link.h"
#include "page/page_reader.h"
#include "platform/trace.h"

namespace quillmark {

class EntryNumbers;
class NavigatorIcons;

/// The navigator of one document: a contents tree and a full-text search that need a browser and
/// nothing else. docs/navigator.md describes its files.
///
///     const auto navigator = Navigator::create({.baseName = "C:\\out\\rep", ...}, trace);
///     page.appendHead(navigator->headLines("C:\\out"));   // every detail page
///     page.setReader(navigator, 1);                       // its words, when it is written
///     navigator->write({.title = "Report", ...}, entries);
class Navigator final : public PageReader {
public:
    /// Where a document's files lie.
    struct Places {
        /// The path of the document without its extension.
        OrxString baseName;
        /// With its dot.
        OrxString extension;
        /// The directory of the navigator's own files.
        OrxString supportDir;
        /// The directory of the user's own icons; empty for none.
        OrxString iconDir;
    };

    /// What the start page shows.
    struct Appearance {
        OrxString title;
        OrxString bodyTags;
        OrxString styleSheetLink;
    };

    /// Writes the script and the style sheet. Null when that fails: then nothing must refer to
    /// them. The trace and the exception log say why.
    [[nodiscard]] static std::shared_ptr<Navigator> create(
        Places places, std::unique_ptr<const TextDecoder> decoder, const Trace& trace);

    Navigator(Places places, std::unique_ptr<const TextDecoder> decoder, const Trace& trace);

    /// What the heads of the pages in a directory end with.
    [[nodiscard]] OrxString headLines(const OrxString& pageDir);
    /// Takes up the words of a page.
    void read(std::uint32_t page, std::span<const std::string_view> pieces) override;
    /// Writes the start page and the files of data. A file that cannot be written goes to the
    /// exception log; the others are written all the same.
    void write(const Appearance& appearance, const ContentsEntryList& entries, const Trace& trace);

private:
    void indexEntries(const ContentsEntryList& entries, const EntryNumbers& numbers);
    void writeTables(const ContentsEntryList& entries, const EntryNumbers& numbers,
                     const NavigatorIcons& icons, const OrxString& title) const;

    Places places_;
    std::unique_ptr<const TextDecoder> decoder_;
    DataFiles files_;
    PageNames pageNames_;
    CachedLink styleSheetLink_;
    CachedLink scriptLink_;
    WordIndex index_;
    PageWords pageWords_{*decoder_, index_};
};

}  // namespace quillmark
