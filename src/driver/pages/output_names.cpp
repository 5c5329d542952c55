#include "driver/pages/output_names.h"

#include <string>
#include <string_view>
#include <utility>

#include "platform/files/path_text.h"
#include "platform/files/sys_file.h"

namespace quillmark {

namespace {

/// The greatest length of output directory and subdirectory together. It leaves room for the file
/// name within the system's limit for a path.
constexpr std::ptrdiff_t directoryLimit = 210;

}  // namespace

void OutputNames::setDocument(const OrxString& fileName) {
    OrxString name = fileName;
    name.replaceStr("/", "\\");
    OrxString extension = SysFile::getExtension(name);
    OrxString outputDir = SysFile::getDir(name);
    name.remove(name.length() - extension.length());
    extension_ = extension.isEmpty() ? OrxString(".htm") : std::move(extension);
    outputDir_ = std::move(outputDir);
    baseName_ = std::move(name);
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

OrxString OutputNames::shortenedDirectory(const OrxString& subDirectory) const {
    const auto taken = static_cast<std::ptrdiff_t>(outputDir_.length());
    // Each step only moves the end of a view: a path may have as many components as a text can
    // hold.
    std::string_view shortened = subDirectory.view();
    while (static_cast<std::ptrdiff_t>(shortened.size()) > directoryLimit - taken) {
        const std::string_view parent = path_text::parent(shortened);
        if (parent.empty()) {
            break;
        }
        shortened = parent;
    }
    const bool fits = shortened.size() == subDirectory.view().size();
    return fits ? subDirectory : path_text::inDriverForm(shortened);
}

}  // namespace quillmark
