#include "driver/arrow_bar.h"

#include "platform/sys_file.h"

namespace quillmark {

namespace {

OrxString pictureLink(const DocumentContext& context, const char* picture) {
    return context.documentLink(SysFile::appendToDir(context.settings.pixDir, picture));
}

OrxString arrowTo(const DocumentContext& context, std::uint32_t pageNumber, const char* picture) {
    OrxString arrow("<A HREF=\"./");
    arrow.append(SysFile::stripDir(context.names.pageFileName(pageNumber, "")));
    arrow.append("\"><IMG SRC=\"").append(pictureLink(context, picture));
    return arrow.append("\" BORDER=\"0\" HSPACE=5 NOSAVE HEIGHT=20 WIDTH=19></A>\n");
}

/// The dead arrows write their attributes in two different orders; browsers do not mind, and
/// comparisons of document sets do.
OrxString deadBackArrow(const DocumentContext& context) {
    return "<IMG SRC=\"" + pictureLink(context, "backOFF.gif") +
           "\" BORDER=\"0\" NOSAVE HEIGHT=20 WIDTH=22>\n";
}

OrxString deadNextArrow(const DocumentContext& context) {
    return "<IMG SRC=\"" + pictureLink(context, "forwardOFF.gif") +
           "\" NOSAVE BORDER=\"0\" HEIGHT=20 WIDTH=22>\n";
}

}  // namespace

OrxString arrowBar(const DocumentContext& context, std::uint32_t pageNumber, bool lastPage) {
    OrxString bar = pageNumber == OutputNames::firstPageNumber
                        ? deadBackArrow(context)
                        : arrowTo(context, pageNumber - 1, "backON.gif");
    bar.append(lastPage ? deadNextArrow(context)
                        : arrowTo(context, pageNumber + 1, "forwardON.gif"));
    return bar.append("<BR>\n");
}

}  // namespace quillmark
