#include "driver/link_writer.h"

#include <string>
#include <utility>

#include "platform/path_text.h"
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

LinkWriter::Target LinkWriter::open(OrxString target) {
    if (SysFile::isHyperLink(target)) {
        writeStart(target);
        return {std::move(target), false};
    }
    if (SysFile::exists(target)) {
        writeStart(linkOfFile(target));
        return {std::move(target), false};
    }
    if (findExternalDocument(target)) {
        writeStart(context_.documentLink(candidate_));
    } else {
        std::string markup;
        markup.reserve(linkOpening.size() + target.length() + 1);
        bookmarks_.reference(target, markup.append(linkOpening).append(target).append(">"));
    }
    const bool named = !target.isEmpty();
    return {std::move(target), named};
}

void LinkWriter::writeStart(const OrxString& href) {
    OrxString markup(linkOpening);
    context_.out.writeOut(markup.append("HREF=\"").append(href).append("\">"));
}

OrxString LinkWriter::linkOfFile(const OrxString& file) {
    const DocumentSettings& settings = context_.settings;
    if (!settings.useRelative) {
        return context_.documentLink(file);
    }
    const OrxString& directory = isImageName(file) ? settings.pixDir : settings.externalDocDir;
    return context_.documentLink(context_.copyTo(directory, file));
}

bool LinkWriter::findExternalDocument(const OrxString& target) {
    const std::string_view name = target.view().substr(path_text::fileStart(target));
    if (!context_.settings.expandRelativeNames || name.empty()) {
        return false;
    }
    candidate_.clear();
    candidate_.append(context_.settings.externalDocDir).append("\\").append(name);
    return SysFile::exists(candidate_);
}

void LinkWriter::close(const Target& target) {
    if (target.endsAsBookmark) {
        bookmarks_.reference(target.name, linkEnd);
    } else {
        writeEnd();
    }
}

void LinkWriter::writeEnd() { context_.out.writeOut(linkEnd); }

}  // namespace quillmark
