#include "driver/links/link_writer.h"

#include "driver/pages/picture_names.h"
#include "page/links/link_attribute.h"
#include "platform/files/path_text.h"
#include "platform/files/sys_file.h"

namespace quillmark {

namespace {

constexpr std::string_view linkOpening = "<A ";
constexpr std::string_view linkEnd = "</A>";

}  // namespace

LinkWriter::End LinkWriter::open(const OrxString& target) {
    if (SysFile::isHyperLink(target)) {
        writeStart(target);
        return End::tag;
    }
    if (SysFile::exists(target, context_.trace)) {
        writeStart(linkOfFile(target));
        return End::tag;
    }
    if (findExternalDocument(target)) {
        writeStart(context_.documentLink(candidate_));
    } else {
        markup_.assign(linkOpening).append(target).append(">");
        bookmarks_.reference(target, markup_);
    }
    return target.isEmpty() ? End::tag : End::bookmark;
}

void LinkWriter::writeStart(const OrxString& href) {
    markup_.assign(linkOpening).append(LinkAttribute::opening).append(href);
    markup_.append(LinkAttribute::end).append(">");
    context_.out.writeOut(markup_);
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
    return SysFile::exists(candidate_, context_.trace);
}

void LinkWriter::close(const OrxString& target, End end) {
    if (end == End::bookmark) {
        bookmarks_.reference(target, linkEnd);
    } else {
        writeEnd();
    }
}

void LinkWriter::writeEnd() {
    context_.out.writeOut(linkEnd);
}

}  // namespace quillmark
