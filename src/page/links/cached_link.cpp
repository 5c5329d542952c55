#include "page/links/cached_link.h"

#include <utility>

#include "page/links/links.h"

namespace quillmark {

const OrxString& CachedLink::relativeFile(const OrxString& fileName, const OrxString& base) {
    const TextEncoding* const encoding = &TextEncoding::current();
    if (encoding != encoding_ || fileName != fileName_ || base != base_) {
        OrxString link = links::relativeFile(fileName, base);
        // Until all is there, the link is nobody's.
        encoding_ = nullptr;
        link_ = std::move(link);
        fileName_ = fileName;
        base_ = base;
        encoding_ = encoding;
    }
    return link_;
}

}  // namespace quillmark
