#include "driver/pages/picture_names.h"

#include "platform/files/sys_file.h"

namespace quillmark {

bool isImageName(const OrxString& fileName) {
    const OrxString extension = SysFile::getExtension(fileName);
    return extension == ".jpg" || extension == ".jpeg" || extension == ".gif";
}

}  // namespace quillmark
