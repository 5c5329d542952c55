#include "platform/files/sys_directory.h"

#include "platform/files/file_system.h"
#include "platform/files/path_text.h"
#include "platform/files/sys_file.h"
#include "platform/system_facts.h"

namespace quillmark {

bool SysDirectory::exists(const OrxString& dir) {
    return FileSystem::current().directoryExists(dir);
}

bool SysDirectory::create(const OrxString& dir) {
    return FileSystem::current().makeDirectories(dir);
}

bool SysDirectory::checkDirectoryAndCreate(const OrxString& dir) {
    return exists(dir) || create(dir);
}

OrxString SysDirectory::getSpecificPath(const OrxString& dir, const OrxString& name) {
    return path_text::isAbsolute(name) ? path_text::inDriverForm(name)
                                       : SysFile::appendToDir(dir, name);
}

OrxString SysDirectory::getParentDirectory(const OrxString& dir) {
    return path_text::inDriverForm(path_text::parent(dir));
}

OrxString SysDirectory::getRelativePath(const OrxString& base, const OrxString& target) {
    return path_text::relativePath(base, target, system_facts::namesIgnoreCase());
}

bool SysDirectory::setCurrentDir(const OrxString& dir) {
    return FileSystem::current().setCurrentDirectory(dir);
}

OrxString SysDirectory::getCurrentDir() {
    return FileSystem::current().currentDirectory();
}

}  // namespace quillmark
