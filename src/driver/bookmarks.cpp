#include "driver/bookmarks.h"

#include "page/links.h"
#include "platform/path_text.h"
#include "platform/sys_directory.h"
#include "platform/sys_file.h"

namespace quillmark {

namespace {

constexpr std::string_view anchorOpening = "<a name=\"";
constexpr std::string_view anchorEnd = "\"></a>";
constexpr std::string_view hrefOpening = "HREF=\"";
constexpr std::string_view hrefEnd = "\"";

std::string_view directoryOf(std::string_view file) noexcept {
    return file.substr(0, path_text::fileStart(file));
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
    std::string anchor;
    anchor.reserve(anchorOpening.size() + name.size() + anchorEnd.size());
    out_.page().append(anchor.append(anchorOpening).append(name).append(anchorEnd));
    registry_.define(id, out_.page().getFileName());
    if (trace_.isTrace(Trace::reports)) {
        OrxString line("created bookmark:");
        line.append(name).append(" as ").append(registry_.reference(id)).append('\n');
        trace_.write(Trace::reports, line);
    }
}

void Bookmarks::resolve(BookmarkRegistry::Id id, std::string_view name) {
    for (const WaitingPage& waiting : registry_.takeWaiting(id)) {
        DocHtmlPage& page = *waiting.page;
        page.resolveMarks(name, relativeReference(id, page));
        if (&page != &out_.page() && !page.hasMarks()) {
            held_.finish(waiting.number, page);
        }
    }
}

void Bookmarks::reference(std::string_view name, std::string_view markup) {
    const BookmarkRegistry::Id id = registry_.add(name);
    if (registry_.isDefined(id)) {
        writeReference(name, markup, relativeReference(id, out_.page()));
        return;
    }
    out_.page().addMark(name, markup);
    registry_.addWaiting(id, {out_.sharedPage(), pageNumber_});
}

void Bookmarks::writeReference(std::string_view name, std::string_view markup,
                               std::string_view reference) {
    const std::size_t hit = markup.empty() ? 0 : markup.find(name);
    if (hit == std::string_view::npos) {
        out_.writeOut(markup);  // the end of a link
        return;
    }
    if (!markup.empty()) {
        out_.writeOut(markup.substr(0, hit));
    }
    out_.writeOut(hrefOpening);
    out_.writeOut(reference);
    out_.writeOut(hrefEnd);
    if (!markup.empty()) {
        out_.writeOut(markup.substr(hit + name.size()));
    }
}

OrxString Bookmarks::relativeReference(BookmarkRegistry::Id id, const DocHtmlPage& page) {
    const std::string_view from = directoryOf(page.getFileName());
    const std::string_view to = directoryOf(registry_.pageFile(id));
    if (from == to) {
        return registry_.reference(id);
    }
    if (from != lastWay_.from || to != lastWay_.to) {
        const OrxString way = links::fromPath(
            SysDirectory::getRelativePath(SysFile::getDir(page.getFileName()),
                                          SysFile::getDir(OrxString(registry_.pageFile(id)))));
        lastWay_ = {std::string(from), std::string(to), way.isEmpty() ? way : way + "/"};
    }
    return lastWay_.link + registry_.reference(id);
}

}  // namespace quillmark
