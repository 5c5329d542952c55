#include "page/cached_link.h"

#include "page/links.h"

namespace quillmark {

const OrxString& CachedLink::relativeFile(const OrxString& fileName, const OrxString& base) {
    const TextEncoding* const encoding = &TextEncoding::current();
    if (encoding != encoding_ || fileName != fileName_ || base != base_) {
        link_ = links::relativeFile(fileName, base);
        fileName_ = fileName;
        base_ = base;
        encoding_ = encoding;
    }
    return link_;
}

}  // namespace quillmark
