#include "driver/pages/output_names.h"

#include <string>

#include "platform/sys_directory.h"
#include "platform/sys_file.h"

namespace quillmark {

namespace {

/// The greatest length of output directory and subdirectory together. It leaves room for the file
/// name within the system's limit for a path.
constexpr std::ptrdiff_t directoryLimit = 210;

}  // namespace

void OutputNames::setDocument(const OrxString& fileName) {
    OrxString name = fileName;
    name.replaceStr("/", "\\");
    const OrxString extension = SysFile::getExtension(name);
    extension_ = extension.isEmpty() ? OrxString(".htm") : extension;
    outputDir_ = SysFile::getDir(name);
    baseName_ = name.remove(name.length() - extension.length());
}

OrxString OutputNames::pageFileName(std::uint32_t number, const OrxString& subDirectory) const {
    OrxString name = baseName_;
    if (detailNames_) {
        name.append("_dtl");
    }
    if (number != firstPageNumber) {
        name.append(std::to_string(number));
    }
    if (!subDirectory.isEmpty()) {
        name = SysFile::appendToDir(SysFile::appendToDir(outputDir_, subDirectory),
                                    SysFile::stripDir(name));
    }
    return name.append(extension_);
}

OrxString OutputNames::shortenedDirectory(OrxString subDirectory) const {
    const auto taken = static_cast<std::ptrdiff_t>(outputDir_.length());
    while (static_cast<std::ptrdiff_t>(subDirectory.length()) > directoryLimit - taken) {
        OrxString parent = SysDirectory::getParentDirectory(subDirectory);
        if (parent.isEmpty()) {
            break;
        }
        subDirectory = std::move(parent);
    }
    return subDirectory;
}

}  // namespace quillmark
