#include "driver/links/bookmark_writer.h"

#include <utility>

#include "page/links/link_attribute.h"
#include "page/links/links.h"
#include "platform/files/path_text.h"
#include "platform/files/sys_directory.h"
#include "platform/files/sys_file.h"
#include "platform/text_encoding.h"

namespace quillmark {

namespace {

constexpr std::string_view anchorOpening = "<a name=\"";
constexpr std::string_view anchorEnd = "\"></a>";

/// Appends the directory part of the link from one page's file to another's.
void appendDirectory(std::string& link, std::string_view target, std::string_view fromPage) {
    const OrxString directory = links::fromPath(
        SysDirectory::getRelativePath(SysFile::getDir(fromPage), SysFile::getDir(target)));
    if (!directory.isEmpty()) {
        link.append(directory).append("/");
    }
}

}  // namespace

void BookmarkWriter::define(std::string_view name, Origin origin) {
    if (name.empty()) {
        return;
    }
    const BookmarkTable::Id id = table_.add(name);
    if (!table_.isDefined(id)) {
        writeAnchor(id, name);
        resolve(id, name);
        return;
    }
    const int level = origin == Origin::host ? Trace::errors : Trace::reports;
    if (trace_.isTrace(level)) {
        OrxString line("WARNING: bookmark \"");
        line.append(name).append("\" already exists as ");
        line.append(table_.reference(id)).append('\n');
        trace_.write(level, line);
    }
}

void BookmarkWriter::writeAnchor(BookmarkTable::Id id, std::string_view name) {
    anchor_.assign(anchorOpening).append(name).append(anchorEnd);
    table_.define(id, out_.page().getFileName());
    try {
        out_.page().append(anchor_);
    } catch (...) {
        table_.undefine(id);
        throw;
    }
    if (trace_.isTrace(Trace::reports)) {
        OrxString line("created bookmark:");
        line.append(name).append(" as ").append(table_.reference(id)).append('\n');
        trace_.write(Trace::reports, line);
    }
}

void BookmarkWriter::resolve(BookmarkTable::Id id, std::string_view name) {
    table_.takeWaiting(id, [&](const WaitingPage& waiting) {
        DocHtmlPage& page = *waiting.page;
        page.resolveMarks(name, relativeReference(id, page), waiting.nameId);
        if (&page != &out_.page() && !page.hasMarks()) {
            held_.finish(waiting.number, page);
        }
    });
}

void BookmarkWriter::reference(std::string_view name, std::string_view markup) {
    const BookmarkTable::Id id = table_.add(name);
    if (table_.isDefined(id)) {
        writeReference(id, name, markup);
        return;
    }
    DocHtmlPage& page = out_.page();
    const WaitingPage* last = table_.lastWaiting(id);
    if (last != nullptr && last->page.get() == &page) {
        page.addMark(name, markup, last->nameId);
    } else {
        const DocHtmlPage::MarkNameId nameId = page.addMark(name, markup);
        table_.addWaiting(id, {out_.sharedPage(), out_.pageNumber(), nameId});
    }
}

void BookmarkWriter::writeReference(BookmarkTable::Id id, std::string_view name,
                                    std::string_view markup) {
    const auto place = LinkAttribute::placeIn(markup, name);
    if (!place.isFound()) {
        out_.writeOut(markup);
        return;
    }
    const std::string_view reference = relativeReference(id, out_.page());
    if (!markup.empty()) {
        out_.writeOut(markup.substr(0, place.start));
    }
    out_.writeOut(LinkAttribute::opening);
    out_.writeOut(reference);
    out_.writeOut(LinkAttribute::end);
    if (!markup.empty()) {
        out_.writeOut(markup.substr(place.start + place.length));
    }
}

std::string_view BookmarkWriter::relativeReference(BookmarkTable::Id id, const DocHtmlPage& page) {
    const std::uint32_t toPage = table_.pageFileNumber(id);
    const OrxString& fromPage = page.getFileName();
    if (lastRoute_.link.isEmpty() || toPage != lastRoute_.toPage ||
        fromPage != lastRoute_.fromPage) {
        findRoute(table_.pageFile(id), fromPage);
        lastRoute_.toPage = toPage;
    }
    return reference_.assign(lastRoute_.link).append(table_.name(id));
}

/// The link to a page without a file name is only the fragment. Without memory no route is known.
void BookmarkWriter::findRoute(std::string_view target, const OrxString& fromPage) {
    lastRoute_.link.clear();
    if (lastRoute_.fromPage != fromPage) {
        lastRoute_.fromPage = fromPage;
        lastRoute_.fromFile = path_text::fileStart(fromPage);
    }
    reference_.clear();
    const std::size_t file = path_text::fileStart(target);
    // Most pages are in the same directory.
    if (!target.empty() &&
        target.substr(0, file) != fromPage.view().substr(0, lastRoute_.fromFile)) {
        appendDirectory(reference_, target, fromPage);
    }
    filePart_.clear();
    filePart_.append(target.substr(file));
    // Moved in and out, so that its memory is kept.
    filePart_ = TextEncoding::current().inLink(std::move(filePart_));
    reference_.append(filePart_).append("#");
    lastRoute_.link.append(reference_);
}

}  // namespace quillmark
