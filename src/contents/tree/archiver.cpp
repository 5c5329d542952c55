#include "contents/tree/archiver.h"

#include <vector>

#include "platform/files/failure_lines.h"
#include "platform/files/file_failure.h"
#include "platform/files/sys_file.h"
#include "platform/sys_shell.h"

namespace quillmark {

namespace {

/// A file name that the archiver cannot take for an option or a list of names.
OrxString asFileName(const OrxString& name) {
    return name.startsWith("-") || name.startsWith("@") ? ".\\" + name : name;
}

/// -m moves the file into the archive, -q is quiet, -j stores the name without its directory.
std::vector<OrxString> archiverArguments(const OrxString& archive, const OrxString& dataFile) {
    return {"-m", "-q", "-j", asFileName(archive), asFileName(dataFile)};
}

}  // namespace

OrxString packDataFile(const OrxString& dataFile, const OrxString& installDir, const Trace& trace) {
    OrxString archive = dataFile + ".zip";
    FileFailure::forget();
    if (!SysFile::deleteFile(archive) && FileFailure::isNoted() && !FileFailure::isMissingFile()) {
        failure_lines::write(trace, "ERR Cannot remove file ", archive);
    }
    const OrxString archiver = SysFile::appendToDir(installDir, "zip.exe");
    if (SysShell::start(archiver, archiverArguments(archive, dataFile)) >= SysShell::started) {
        return archive;
    }
    if (trace.isTrace(Trace::errors)) {
        trace.write(Trace::errors, "ERR: running " + archiver + "\n");
    }
    return dataFile;
}

}  // namespace quillmark
