#include "page/links.h"

#include "foundation/module_lifetime.h"
#include "foundation/process_wide.h"
#include "platform/sys_directory.h"
#include "platform/sys_file.h"

namespace quillmark::links {

namespace {

ProcessWide<OrxString>& processDefaultBase() {
    static ModuleLifetime<ProcessWide<OrxString>> base;
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
    return processDefaultBase().get();
}

OrxString baseOrDefault(const OrxString& directory) {
    return directory.isEmpty() ? defaultBase() : directory;
}

void setDefaultBase(const OrxString& directory) {
    processDefaultBase().exchange(directory);
}

}  // namespace quillmark::links
