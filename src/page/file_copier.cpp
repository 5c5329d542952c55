#include "page/file_copier.h"

#include "host/document_observer.h"
#include "platform/files/failure_lines.h"
#include "platform/files/sys_directory.h"
#include "platform/files/sys_file.h"

namespace quillmark {

OrxString FileCopier::copyToDir(const OrxString& source, const OrxString& targetDir,
                                const OrxString& targetName, const Trace& trace) const {
    const OrxString extension = SysFile::getExtension(source);
    const bool linkedInPlace = !extension.isEmpty() && dontCopy_.contains(extension);
    if (linkedInPlace || !SysFile::exists(source, trace)) {
        return source;
    }
    SysDirectory::checkDirectoryAndCreate(targetDir);
    const OrxString name = targetName.isEmpty() ? SysFile::stripDir(source) : targetName;
    OrxString target = SysFile::appendToDir(targetDir, name);
    if (SysFile::copy(source, target)) {
        DocumentObserver::current().fileCopied(target);
        return target;
    }
    failure_lines::writeReason(trace);
    if (trace.isTrace(Trace::errors)) {
        OrxString line("ERR Could not copy file ");
        line.append(source).append(" to directory ").append(targetDir).append('\n');
        trace.write(Trace::errors, line);
    }
    // A copy from an earlier run can still be used.
    return SysFile::exists(target) ? target : source;
}

}  // namespace quillmark
