#include "driver/link_writer.h"

#include "platform/sys_file.h"

namespace quillmark {

namespace {

constexpr std::string_view linkOpening = "<A ";
constexpr std::string_view linkEnd = "</A>";

}  // namespace

bool isImageName(const OrxString& fileName) {
    const OrxString extension = SysFile::getExtension(fileName);
    return extension == ".jpg" || extension == ".jpeg" || extension == ".gif";
}

OrxString LinkWriter::hrefOf(const OrxString& target) {
    if (SysFile::isHyperLink(target)) {
        return target;
    }
    const DocumentSettings& settings = context_.settings;
    if (SysFile::exists(target)) {
        if (!settings.useRelative) {
            return context_.documentLink(target);
        }
        const OrxString& directory =
            isImageName(target) ? settings.pixDir : settings.externalDocDir;
        return context_.documentLink(context_.copyTo(directory, target));
    }
    const OrxString name = SysFile::stripDir(target);
    if (settings.expandRelativeNames && !name.isEmpty()) {
        const OrxString candidate = SysFile::appendToDir(settings.externalDocDir, name);
        if (SysFile::exists(candidate)) {
            return context_.documentLink(candidate);
        }
    }
    return {};
}

void LinkWriter::open(const OrxString& target) {
    const OrxString href = hrefOf(target);
    if (href.isEmpty()) {
        OrxString markup(linkOpening);
        bookmarks_.reference(target, markup.append(target).append('>'));
        return;
    }
    OrxString markup(linkOpening);
    context_.out.writeOut(markup.append("HREF=\"").append(href).append("\">"));
}

void LinkWriter::close(const OrxString& target) {
    if (target.isEmpty() || SysFile::isHyperLink(target) || SysFile::exists(target)) {
        context_.out.writeOut(linkEnd);
    } else {
        bookmarks_.reference(target, linkEnd);
    }
}

}  // namespace quillmark
