#include "driver/links/bookmarks.h"

#include <utility>

#include "page/link_attribute.h"
#include "page/links.h"
#include "platform/sys_directory.h"
#include "platform/sys_file.h"

namespace quillmark {

namespace {

constexpr std::string_view anchorOpening = "<a name=\"";
constexpr std::string_view anchorEnd = "\"></a>";

/// The link from one page's file to another's, up to the name of the bookmark. A page that has no
/// file name yet is reached by the fragment alone.
OrxString wayTo(const OrxString& target, const OrxString& fromPage) {
    OrxString link;
    if (!target.isEmpty()) {
        link = links::fromPath(
            SysDirectory::getRelativePath(SysFile::getDir(fromPage), SysFile::getDir(target)));
    }
    if (!link.isEmpty()) {
        link.append('/');
    }
    return link.append(SysFile::stripDir(target)).append('#');
}

}  // namespace

void Bookmarks::define(std::string_view name, Origin origin) {
    if (name.empty()) {
        return;
    }
    const BookmarkRegistry::Id id = registry_.add(name);
    if (!registry_.isDefined(id)) {
        writeAnchor(id, name);
        resolve(id, name);
        return;
    }
    const int level = origin == Origin::host ? Trace::errors : Trace::reports;
    if (trace_.isTrace(level)) {
        OrxString line("WARNING: bookmark \"");
        line.append(name).append("\" already exists as ");
        line.append(registry_.reference(id)).append('\n');
        trace_.write(level, line);
    }
}

void Bookmarks::writeAnchor(BookmarkRegistry::Id id, std::string_view name) {
    anchor_.assign(anchorOpening).append(name).append(anchorEnd);
    out_.page().append(anchor_);
    registry_.define(id, out_.page().getFileName());
    if (trace_.isTrace(Trace::reports)) {
        OrxString line("created bookmark:");
        line.append(name).append(" as ").append(registry_.reference(id)).append('\n');
        trace_.write(Trace::reports, line);
    }
}

void Bookmarks::resolve(BookmarkRegistry::Id id, std::string_view name) {
    registry_.takeWaiting(id, [&](const WaitingPage& waiting) {
        DocHtmlPage& page = *waiting.page;
        page.resolveMarks(name, relativeReference(id, page), waiting.nameId);
        if (&page != &out_.page() && !page.hasMarks()) {
            held_.finish(waiting.number, page);
        }
    });
}

void Bookmarks::reference(std::string_view name, std::string_view markup) {
    const BookmarkRegistry::Id id = registry_.add(name);
    if (registry_.isDefined(id)) {
        writeReference(name, markup, relativeReference(id, out_.page()));
        return;
    }
    DocHtmlPage& page = out_.page();
    const WaitingPage* last = registry_.lastWaiting(id);
    if (last != nullptr && last->page.get() == &page) {
        page.addMark(name, markup, last->nameId);
    } else {
        const DocHtmlPage::MarkNameId nameId = page.addMark(name, markup);
        registry_.addWaiting(id, {out_.sharedPage(), out_.pageNumber(), nameId});
    }
}

void Bookmarks::writeReference(std::string_view name, std::string_view markup,
                               std::string_view reference) {
    const auto place = LinkAttribute::placeIn(markup, name);
    if (!place.isThere()) {
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

std::string_view Bookmarks::relativeReference(BookmarkRegistry::Id id, const DocHtmlPage& page) {
    const std::uint32_t toPage = registry_.pageFileNumber(id);
    const OrxString& fromPage = page.getFileName();
    if (lastWay_.link.isEmpty() || toPage != lastWay_.toPage || fromPage != lastWay_.fromPage) {
        lastWay_ = {fromPage, toPage, wayTo(OrxString(registry_.pageFile(id)), fromPage)};
    }
    return reference_.assign(lastWay_.link).append(registry_.name(id));
}

}  // namespace quillmark
