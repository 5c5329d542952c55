#include "driver/pages/arrow_bar.h"

#include "contents/support_files.h"
#include "driver/pages/picture_names.h"
#include "page/links/links.h"
#include "platform/files/sys_file.h"

namespace quillmark {

namespace {

/// In the order of `ArrowBar::Picture`.
constexpr std::array pictureNames = {"backON.gif", "backOFF.gif", "forwardON.gif",
                                     "forwardOFF.gif"};
/// Failed copies are traced in this order.
constexpr std::array copyOrder = {"forwardON.gif", "forwardOFF.gif", "backON.gif", "backOFF.gif"};

}  // namespace

OrxString ArrowBar::pictureLink(Picture picture) {
    const OrxString file = SysFile::appendToDir(context_.settings.pixDir, pictureNames.at(picture));
    return context_.documentLink(file, links_.at(picture));
}

void ArrowBar::appendArrow(OrxString& bar, std::uint32_t pageNumber, Picture picture) {
    bar.append("<A HREF=\"./");
    bar.append(links::fromFilePart(context_.names.pageFileName(pageNumber, "")));
    bar.append("\"><IMG SRC=\"").append(pictureLink(picture));
    bar.append("\" BORDER=\"0\" HSPACE=5 NOSAVE HEIGHT=20 WIDTH=19></A>\n");
}

OrxString ArrowBar::bar(std::uint32_t pageNumber, bool lastPage) {
    OrxString bar;
    // The two dead arrows have their attributes in different orders. This is kept because document
    // sets are compared byte for byte.
    if (pageNumber == OutputNames::firstPageNumber) {
        bar.append("<IMG SRC=\"").append(pictureLink(backOff));
        bar.append("\" BORDER=\"0\" NOSAVE HEIGHT=20 WIDTH=22>\n");
    } else {
        appendArrow(bar, pageNumber - 1, backOn);
    }
    if (lastPage) {
        bar.append("<IMG SRC=\"").append(pictureLink(forwardOff));
        bar.append("\" NOSAVE BORDER=\"0\" HEIGHT=20 WIDTH=22>\n");
    } else {
        appendArrow(bar, pageNumber + 1, forwardOn);
    }
    return bar.append("<BR>\n");
}

void copyArrowPictures(const DocumentContext& context) {
    const OrxString pictures = installedName(context.settings.installDir, installedPicturesName);
    for (const char* const name : copyOrder) {
        context.copyTo(context.settings.pixDir, SysFile::appendToDir(pictures, name));
    }
}

}  // namespace quillmark
