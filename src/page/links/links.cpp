#include "page/links/links.h"

#include <utility>

#include "foundation/module_lifetime.h"
#include "foundation/process_wide.h"
#include "platform/files/sys_directory.h"
#include "platform/files/sys_file.h"
#include "platform/text_encoding.h"

namespace quillmark::links {

namespace {

/// A directory, in the encoding of the document that set it.
struct Base {
    OrxString directory;
    const TextEncoding* encoding = &TextEncoding::codePage();
};

ProcessWide<Base>& processDefaultBase() {
    static ModuleLifetime<ProcessWide<Base>> base;
    return *base;
}

}  // namespace

OrxString fromPath(OrxString path) {
    path.replaceStr(":", "|").replaceStr("\\", "/");
    return TextEncoding::current().inLink(std::move(path));
}

OrxString fromFilePart(const OrxString& fileName) {
    return TextEncoding::current().inLink(SysFile::stripDir(fileName));
}

OrxString relative(const OrxString& target, const OrxString& base) {
    return fromPath(SysDirectory::getRelativePath(baseOrDefault(base), target));
}

OrxString relativeFile(const OrxString& fileName, const OrxString& base) {
    return fromPath(SysFile::getRelativeFileName(base, fileName));
}

OrxString defaultBase() {
    const Base base = processDefaultBase().get();
    return TextEncoding::current().recoded(base.directory, *base.encoding);
}

OrxString baseOrDefault(const OrxString& directory) {
    return directory.isEmpty() ? defaultBase() : directory;
}

void setDefaultBase(const OrxString& directory) {
    processDefaultBase().exchange({directory, &TextEncoding::current()});
}

}  // namespace quillmark::links
