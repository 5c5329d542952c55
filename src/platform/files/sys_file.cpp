#include "platform/files/sys_file.h"

#include <algorithm>
#include <memory>

#include "foundation/ascii.h"
#include "platform/files/failure_lines.h"
#include "platform/files/file_failure.h"
#include "platform/files/path_text.h"
#include "platform/files/sys_directory.h"

namespace quillmark {

namespace {

bool isSchemeCharacter(char c) noexcept {
    return ascii::isLetter(c) || (c >= '0' && c <= '9') || c == '+' || c == '-' || c == '.';
}

}  // namespace

bool SysFile::exists(const OrxString& name) {
    return FileSystem::current().fileExists(name);
}

bool SysFile::exists(const OrxString& name, const Trace& trace) {
    FileFailure::forget();
    if (exists(name)) {
        return true;
    }
    if (FileFailure::isNoted()) {
        failure_lines::write(trace, "ERR Cannot look up file ", name);
    }
    return false;
}

bool SysFile::copy(const OrxString& source, const OrxString& target) {
    FileFailure::forget();
    return FileSystem::current().copyFile(source, target);
}

bool SysFile::deleteFile(const OrxString& name) {
    return FileSystem::current().deleteFile(name);
}

OrxString SysFile::getExtension(const OrxString& name) {
    const std::string_view file = name.view().substr(path_text::fileStart(name));
    const std::size_t dot = file.rfind('.');
    return dot == std::string_view::npos ? OrxString() : OrxString(file.substr(dot));
}

OrxString SysFile::stripDir(const OrxString& name) {
    return name.view().substr(path_text::fileStart(name));
}

OrxString SysFile::getDir(const OrxString& name) {
    std::string_view dir = name.view().substr(0, path_text::fileStart(name));
    // A single separator is the root directory. Without it the name would become relative.
    if (dir.size() > 1 && path_text::isSeparator(dir.back())) {
        dir.remove_suffix(1);
    }
    return path_text::inDriverForm(dir);
}

OrxString SysFile::appendToDir(const OrxString& dir, const OrxString& name) {
    OrxString result = path_text::inDriverForm(dir);
    if (!result.isEmpty() && result.view().back() != '\\') {
        result.append('\\');
    }
    return result.append(path_text::inDriverForm(name));
}

OrxString SysFile::getRelativeFileName(const OrxString& baseDir, const OrxString& name) {
    return appendToDir(SysDirectory::getRelativePath(baseDir, getDir(name)), stripDir(name));
}

bool SysFile::isHyperLink(const OrxString& text) {
    // Fast path: most targets are names.
    if (text.first(':') == OrxString::npos) {
        return false;
    }
    if (text.startsWith("mailto:") || text.startsWith("news:")) {
        return true;
    }
    const std::string_view view = text.view();
    const auto* const end = std::find_if_not(view.begin(), view.end(), isSchemeCharacter);
    const auto length = static_cast<std::size_t>(end - view.begin());
    return length >= 2 && ascii::isLetter(view.front()) && view.substr(length).starts_with("://");
}

WriteResult SysFile::writeWhole(const OrxString& name, std::span<const std::string_view> pieces) {
    FileFailure::forget();
    const std::unique_ptr<OutputFile> file = FileSystem::current().openForReplacing(name);
    if (file == nullptr) {
        return WriteResult::openFailed;
    }
    const bool written = file->write(pieces);
    // `close` comes first, so that the file is also closed after a failed write.
    return file->close() && written ? WriteResult::done : WriteResult::writeFailed;
}

}  // namespace quillmark
