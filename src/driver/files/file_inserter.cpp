#include "driver/files/file_inserter.h"

#include "driver/files/line_reader.h"
#include "driver/pages/picture_names.h"
#include "platform/sys_file.h"

namespace quillmark {

void FileInserter::insertFile(const OrxString& fileName, InsertAs as) {
    if (fileName.isEmpty()) {
        return;
    }
    // The search for a picture runs, and tells what it does not find, before the copy among the
    // external documents is looked at.
    OrxString name = fileName;
    const bool found = SysFile::isHyperLink(name) || images_.findImage(name);
    const OrxString namePart = SysFile::stripDir(fileName);
    const bool expands = context_.settings.expandRelativeNames && !namePart.isEmpty();
    const OrxString candidate =
        expands ? SysFile::appendToDir(context_.settings.externalDocDir, namePart) : OrxString();
    const bool candidateFound = expands && SysFile::exists(candidate);
    if (!found && !candidateFound) {
        return;
    }
    if (as == InsertAs::contents) {
        insertContents(candidateFound ? candidate : name);
        return;
    }
    // The end tag is written at once, whatever the link leads to: one that waits for a bookmark
    // opens only when the bookmark comes.
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
    const std::unique_ptr<InputFile> file = FileSystem::current().openForReading(name);
    if (file == nullptr) {
        context_.traceError("ERR Cannot open : ", name);
        return;
    }
    LineReader lines(*file);
    bool first = true;
    for (std::string line; lines.next(line); first = false) {
        if (!first) {
            text_.insertEndl();
        }
        if (!line.empty()) {
            text_.insertEscaped(line);
        }
    }
}

}  // namespace quillmark
