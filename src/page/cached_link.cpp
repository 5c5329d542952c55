#include "page/cached_link.h"

#include "page/links.h"

namespace quillmark {

const OrxString& CachedLink::relativeFile(const OrxString& fileName, const OrxString& base) {
    if (!known_ || fileName != fileName_ || base != base_) {
        known_ = false;
        link_ = links::relativeFile(fileName, base);
        fileName_ = fileName;
        base_ = base;
        known_ = true;
    }
    return link_;
}

}  // namespace quillmark
