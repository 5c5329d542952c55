#include "driver/links/bookmark_writer.h"

#include <utility>

#include "page/link_attribute.h"
#include "page/links.h"
#include "platform/sys_directory.h"
#include "platform/sys_file.h"

namespace quillmark {

namespace {

constexpr std::string_view anchorOpening = "<a name=\"";
constexpr std::string_view anchorEnd = "\"></a>";

/// The link from one page's file to another's, up to the name of the bookmark. The link to a page
/// without a file name is only the fragment.
OrxString routeTo(const OrxString& target, const OrxString& fromPage) {
    OrxString link;
    if (!target.isEmpty()) {
        link = links::fromPath(
            SysDirectory::getRelativePath(SysFile::getDir(fromPage), SysFile::getDir(target)));
    }
    if (!link.isEmpty()) {
        link.append('/');
    }
    return link.append(links::fromFilePart(target)).append('#');
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
        writeReference(name, markup, relativeReference(id, out_.page()));
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

void BookmarkWriter::writeReference(std::string_view name, std::string_view markup,
                                    std::string_view reference) {
    const auto place = LinkAttribute::placeIn(markup, name);
    if (!place.isFound()) {
        out_.writeOut(markup);
        return;
    }
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
        OrxString from = fromPage;
        OrxString link = routeTo(OrxString(table_.pageFile(id)), fromPage);
        lastRoute_.fromPage = std::move(from);
        lastRoute_.toPage = toPage;
        lastRoute_.link = std::move(link);
    }
    return reference_.assign(lastRoute_.link).append(table_.name(id));
}

}  // namespace quillmark
