#include "page/links/cached_link.h"

#include <utility>

#include "page/links/links.h"
#include "platform/files/path_text.h"

namespace quillmark {

const OrxString& CachedLink::relativeFile(const OrxString& fileName, const OrxString& base) {
    const TextEncoding* const encoding = &TextEncoding::current();
    const std::size_t file = path_text::fileStart(fileName);
    const std::string_view directory = fileName.view().substr(0, file);
    if (encoding != encoding_ || directory != directory_.view() || base != base_) {
        findDirectory(directory, base);
        encoding_ = encoding;
    } else if (!fileName_.isEmpty() && fileName == fileName_) {
        return link_;
    }
    // Until all is there, the link is nobody's.
    fileName_.clear();
    OrxString link = opening_;
    link.append(links::fromPath(fileName.view().substr(file)));
    link_ = std::move(link);
    fileName_ = fileName;
    return link_;
}

void CachedLink::findDirectory(std::string_view directory, const OrxString& base) {
    encoding_ = nullptr;
    // A link is made character by character, so it consists of the links to its parts.
    opening_ = links::relativeFile(directory, base);
    directory_.clear();
    directory_.append(directory);
    base_ = base;
}

}  // namespace quillmark
