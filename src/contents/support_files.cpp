#include "contents/support_files.h"

#include "platform/files/sys_file.h"

namespace quillmark {

namespace {

void copyApplet(const ContentsContext& context) {
    const auto copy = [&](const OrxString& name, const OrxString& targetName) {
        context.copier.copyToDir(installedName(context.installDir, name), context.outputDir,
                                 targetName, context.trace);
    };
    copy(context.appletJar, context.appletArchive);
    if (context.useJnlp) {
        copy(context.appletJnlp, "");
    }
}

}  // namespace

OrxString installedName(const OrxString& directory, const OrxString& name) {
    return SysFile::appendToDir(directory.isEmpty() ? OrxString("\\") : directory, name);
}

IconArchives copyContentsSupportFiles(const ContentsContext& context) {
    copyApplet(context);
    const auto copyIcons = [&](const OrxString& source) {
        return context.copier.copyToDir(source, context.pixDir, "", context.trace);
    };
    IconArchives archives;
    archives.icons = copyIcons(installedName(context.installDir, iconArchiveName));
    if (!context.iconFile.isEmpty()) {
        archives.userIcons = copyIcons(context.iconFile);
    }
    return archives;
}

}  // namespace quillmark
