#include "navigator/navigator.h"

#include <optional>
#include <string>
#include <utility>

#include "navigator/data/set_file.h"
#include "navigator/entries/entry_numbers.h"
#include "navigator/entries/navigator_icons.h"
#include "navigator/entries/number_table.h"
#include "navigator/entries/tree_files.h"
#include "navigator/plain_start_page.h"
#include "navigator/support_pieces.h"
#include "navigator/text/plain_text.h"
#include "navigator/text/word_splitter.h"
#include "page/links/links.h"
#include "platform/files/sys_file.h"
#include "platform/out_of_memory.h"

namespace quillmark {

namespace {

constexpr const char* scriptName = "navigator.js";
constexpr const char* styleSheetName = "navigator.css";
constexpr const char* iconFolder = "icons";

}  // namespace

std::shared_ptr<Navigator> Navigator::create(Places places,
                                             std::unique_ptr<const TextDecoder> decoder,
                                             const Trace& trace) {
    auto navigator = std::make_shared<Navigator>(std::move(places), std::move(decoder), trace);
    const bool written =
        writeNavigatorScripts(navigator->places_.supportDir, navigator->files_, trace);
    return written ? navigator : nullptr;
}

Navigator::Navigator(Places places, std::unique_ptr<const TextDecoder> decoder, const Trace& trace)
    : places_(std::move(places)),
      decoder_(std::move(decoder)),
      files_(places_.baseName + "_nav", trace),
      pageNames_{SysFile::stripDir(places_.baseName) + "_dtl", places_.extension} {}

OrxString Navigator::headLines(const OrxString& pageDir) {
    const auto link = [&](const char* name, CachedLink& cached) {
        return cached.relativeFile(SysFile::appendToDir(files_.directory(), name), pageDir);
    };
    OrxString lines(
        "<META NAME=\"viewport\" CONTENT=\"width=device-width, initial-scale=1\">\n"
        "<LINK REL=STYLESHEET TYPE=\"text/css\" HREF=\"");
    lines.append(link(styleSheetName, styleSheetLink_)).append("\" >\n<SCRIPT SRC=\"");
    return lines.append(link(scriptName, scriptLink_)).append("\" DEFER></SCRIPT>\n");
}

void Navigator::read(std::uint32_t page, std::span<const std::string_view> pieces) {
    index_.startPage(page - 1);
    pageWords_.read(pieces);
}

void Navigator::write(const Appearance& appearance, const ContentsEntryList& entries,
                      const Trace& trace) {
    const EntryNumbers numbers(entries);
    const PlainStartPage startPage{
        .fileName = places_.baseName + places_.extension,
        .title = appearance.title,
        .bodyTags = appearance.bodyTags,
        .styleSheetLink = appearance.styleSheetLink,
        .headLines = headLines(SysFile::getDir(places_.baseName)),
    };
    const auto step = [&](const char* what, const auto& body) { survive(trace, what, body); };
    step("the start page", [&] { startPage.write(entries, numbers, *decoder_); });
    const NavigatorIcons icons(
        entries, {places_.iconDir, SysFile::appendToDir(places_.supportDir, iconFolder)},
        SysFile::appendToDir(files_.directory(), iconFolder), trace);
    step("the navigator's tree",
         [&] { TreeFiles(entries, numbers, icons, *decoder_).write(files_); });
    step("the navigator's tables", [&] { writeTables(entries, numbers, icons, appearance.title); });
    step("the contents in the search", [&] { indexEntries(entries, numbers); });
    step("the search", [&] { index_.write(files_); });
}

void Navigator::writeTables(const ContentsEntryList& entries, const EntryNumbers& numbers,
                            const NavigatorIcons& icons, const OrxString& title) const {
    NumberTable pages;
    NumberTable anchors;
    for (std::size_t index = 0; index < entries.size(); ++index) {
        const std::string_view href = entries[index].href;
        const std::optional<std::uint32_t> page = pageNames_.pageNumber(href);
        if (page.has_value() && !pages.has(*page)) {
            pages.set(*page, numbers.numberOf(index));
        }
        if (const std::optional<std::uint32_t> anchor = anchorNumber(href)) {
            anchors.set(*anchor, numbers.numberOf(index));
        }
    }
    pages.write("page", files_);
    anchors.write("anchor", files_);
    SetFile(*decoder_)
        .text("title", plain_text::ofHtml(title, *decoder_))
        .bytes("start", links::fromFilePart(places_.baseName + places_.extension))
        .bytes("name", pageNames_.name)
        .bytes("extension", pageNames_.extension)
        .number("pages", pages.size())
        .number("entries", entries.size())
        .number("roots", numbers.countOfLevel(1))
        .names("icons", icons.names())
        .write(files_);
}

void Navigator::indexEntries(const ContentsEntryList& entries, const EntryNumbers& numbers) {
    // A document that is closed again has other numbers.
    index_.clearEntries();
    WordSplitter splitter(index_, WordSplitter::Within::alsoWithin);
    const auto& nodes = numbers.nodes();
    for (std::uint32_t number = 0; number < nodes.size(); ++number) {
        const ContentsEntryView entry = entries[nodes[number].index];
        if (const std::optional<std::uint32_t> page = pageNames_.pageNumber(entry.href)) {
            index_.startEntry(number, *page - 1);
        } else {
            index_.startEntry(number);
        }
        splitter.split(plain_text::ofHtml(entry.text, *decoder_));
    }
}

}  // namespace quillmark
