#include "driver/files/file_inserter.h"

#include "driver/files/line_reader.h"
#include "driver/pages/picture_names.h"
#include "platform/files/failure_lines.h"
#include "platform/files/file_failure.h"
#include "platform/files/sys_file.h"

namespace quillmark {

void FileInserter::insertFile(const OrxString& fileName, InsertAs as) {
    if (fileName.isEmpty()) {
        return;
    }
    // The image search comes first, because it may write an error line to the trace. The directory
    // of external documents comes second.
    OrxString name = fileName;
    const bool found = SysFile::isHyperLink(name) || images_.findImage(name);
    const OrxString namePart = SysFile::stripDir(fileName);
    const bool expands = context_.settings.expandRelativeNames && !namePart.isEmpty();
    const OrxString candidate =
        expands ? SysFile::appendToDir(context_.settings.externalDocDir, namePart) : OrxString();
    const bool candidateFound = expands && SysFile::exists(candidate, context_.trace);
    if (!found && !candidateFound) {
        return;
    }
    if (as == InsertAs::contents) {
        insertContents(candidateFound ? candidate : name);
        return;
    }
    // The end tag is always written at once, even if the start tag waits for a bookmark.
    static_cast<void>(links_.open(name));
    context_.out.writeOut(SysFile::stripDir(name));
    links_.writeEnd();
}

void FileInserter::insertContents(const OrxString& name) {
    if (isImageName(name)) {
        images_.insertImage(name, "");
    } else if (SysFile::getExtension(name) != OrxString(".bmp")) {
        pasteLines(name);
    }
}

void FileInserter::pasteLines(const OrxString& name) {
    FileFailure::forget();
    const TextEncoding& source = context_.encoding->ofFile(name);
    const std::unique_ptr<InputFile> file = FileSystem::current().openForReading(name);
    if (file == nullptr) {
        failure_lines::writeReason(context_.trace);
        context_.traceError("ERR Cannot open : ", name);
        return;
    }
    LineReader lines(*file, source);
    bool first = true;
    for (std::string line; lines.next(line); first = false) {
        if (!first) {
            text_.insertEndl();
        }
        if (!line.empty()) {
            text_.insertEscaped(context_.encoding->recoded(line, source));
        }
    }
    if (file->failed()) {
        failure_lines::write(context_.trace, "ERR Cannot read to the end of file ", name);
    }
}

}  // namespace quillmark
