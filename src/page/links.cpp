#include "page/links.h"

#include <mutex>

#include "foundation/lasting.h"
#include "platform/sys_directory.h"
#include "platform/sys_file.h"

namespace quillmark::links {

namespace {

struct DefaultBase {
    std::mutex guard;
    OrxString directory;
};

DefaultBase& theDefaultBase() {
    static Lasting<DefaultBase> base;
    return *base;
}

}  // namespace

OrxString fromPath(OrxString path) {
    path.replaceStr(":", "|").replaceStr("\\", "/");
    return path;
}

OrxString relative(const OrxString& target, const OrxString& base) {
    return fromPath(SysDirectory::getRelativePath(baseOrDefault(base), target));
}

OrxString relativeFile(const OrxString& fileName, const OrxString& base) {
    return fromPath(SysFile::getRelativeFileName(base, fileName));
}

OrxString defaultBase() {
    DefaultBase& base = theDefaultBase();
    const std::scoped_lock lock(base.guard);
    return base.directory;
}

OrxString baseOrDefault(const OrxString& directory) {
    return directory.isEmpty() ? defaultBase() : directory;
}

void setDefaultBase(const OrxString& directory) {
    DefaultBase& base = theDefaultBase();
    const std::scoped_lock lock(base.guard);
    base.directory = directory;
}

}  // namespace quillmark::links
