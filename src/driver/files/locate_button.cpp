#include "driver/files/locate_button.h"

#include <array>

#include "contents/support_files.h"
#include "page/links/links.h"
#include "platform/files/sys_file.h"

namespace quillmark {

namespace {

/// The buttons always refer to this directory, whatever the image directory is called.
constexpr const char* pictureDir = "pixs";
constexpr const char* picture = "locate_in_brw.JPG";
constexpr const char* pictureUnderMouse = "locate_in_brw_button_mouse_over.JPG";

constexpr std::string_view buttonTemplate =
    " <input type=image class=locatebtn src=\"%s/pixs/locate_in_brw.JPG\""
    " onmouseout=\"this.src='%s/pixs/locate_in_brw.JPG'\""
    " onmouseover=\"this.src='%s/pixs/locate_in_brw_button_mouse_over.JPG'\""
    " title=\"Locate in browser\" onclick=\"top.contents.Locate(location.href,this, document)\">";

}  // namespace

void LocateButton::insert() {
    if (!context_.settings.locateInBrowser) {
        return;
    }
    OrxString path = links::relative(context_.names.outputDir(), context_.pageDir());
    if (path.isEmpty()) {
        path = ".";
    }
    OrxString button(buttonTemplate);
    text_.emitText(button.replaceStr("%s", path));
    if (locateImagesPending_) {
        copyPictures();
        locateImagesPending_ = false;
    }
}

void LocateButton::copyPictures() {
    const OrxString source = installedName(userFilesDir(), pictureDir);
    for (const char* const name : {picture, pictureUnderMouse}) {
        context_.copyTo(context_.settings.pixDir, SysFile::appendToDir(source, name));
    }
}

}  // namespace quillmark
