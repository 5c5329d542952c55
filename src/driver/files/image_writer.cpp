#include "driver/files/image_writer.h"

#include <optional>

#include "contents/support_files.h"
#include "driver/pages/picture_names.h"
#include "platform/files/sys_file.h"
#include "platform/out_of_memory.h"

namespace quillmark {

bool ImageWriter::findImage(OrxString& name) {
    if (name.isEmpty()) {
        return false;
    }
    if (SysFile::exists(name, context_.trace)) {
        return true;
    }
    if (isImageName(name) && SysFile::getDir(name).isEmpty()) {
        const OrxString installed = SysFile::appendToDir(
            installedName(context_.settings.installDir, installedPicturesName), name);
        if (SysFile::exists(installed, context_.trace)) {
            name = installed;
            return true;
        }
    }
    context_.traceError("ERR File not found: ", name);
    return false;
}

void ImageWriter::insertImage(const OrxString& imageFile, const OrxString& linkTarget) {
    OrxString name = imageFile;
    if (!findImage(name)) {
        return;
    }
    name.replaceStr("/", "\\");
    if (context_.settings.useRelative) {
        name = context_.copyTo(context_.settings.pixDir, name);
    }
    const OrxString source = context_.documentLink(name);
    std::optional<LinkWriter::End> linkEnd;
    if (!linkTarget.isEmpty()) {
        linkEnd = links_.open(linkTarget);
    }
    OrxString markup("<IMG SRC=\"");
    context_.out.writeOut(markup.append(source).append("\" ALIGN=\"BOTTOM\" BORDER=\"0\" "));
    // With a map, the picture's tag ends in the map's markup, and the ">" below ends "</MAP".
    survive(context_.trace, "an image map", [&] {
        maps_.write(imageFile, {[this](std::string_view html) { context_.out.writeOut(html); },
                                [this](const OrxString& bookmark, const OrxString& area) {
                                    bookmarks_.reference(bookmark, area);
                                }});
    });
    context_.out.writeOut(">");
    if (linkEnd) {
        links_.close(linkTarget, *linkEnd);
    }
}

}  // namespace quillmark
