#include "driver/pages/document_context.h"

#include "page/links/links.h"
#include "platform/files/sys_directory.h"
#include "platform/files/sys_file.h"

namespace quillmark {

OrxString DocumentContext::pageDir() const {
    return SysFile::getDir(out.page().getFileName());
}

OrxString DocumentContext::linkBase() const {
    return links::baseOrDefault(pageDir());
}

OrxString DocumentContext::documentLink(const OrxString& fileName) const {
    CachedLink uncached;
    return documentLink(fileName, uncached);
}

OrxString DocumentContext::documentLink(const OrxString& fileName, CachedLink& cached) const {
    if (settings.useRelative) {
        return cached.relativeFile(fileName, linkBase());
    }
    return "file:///" +
           links::fromPath(SysDirectory::getSpecificPath(SysDirectory::getCurrentDir(), fileName));
}

OrxString DocumentContext::copyTo(const OrxString& directory, const OrxString& fileName) const {
    return copier.copyToDir(fileName, directory, "", trace);
}

void DocumentContext::traceError(std::string_view opening, std::string_view subject) const {
    if (trace.isTrace(Trace::errors)) {
        OrxString line(opening);
        line.append(subject).append('\n');
        trace.write(Trace::errors, line);
    }
}

}  // namespace quillmark
