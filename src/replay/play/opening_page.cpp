#include "replay/play/opening_page.h"

#include <string_view>

#include "platform/files/sys_file.h"

namespace quillmark::replay {

namespace {

constexpr std::string_view contentsSuffix = "_cnt";
constexpr std::string_view listingSuffix = "_sfrm";
constexpr std::string_view navigatorScript = "_nav\\navigator.js";

}  // namespace

void OpeningPage::pageWritten(const OrxString& fileName) {
    const OrxString extension = SysFile::getExtension(fileName);
    const std::string_view name = fileName.view().substr(0, fileName.length() - extension.length());
    if (shortest_.isEmpty() || fileName.length() < shortest_.length()) {
        shortest_ = fileName;
    }
    if (!contents_.has_value() && name.ends_with(contentsSuffix)) {
        const OrxString base = name.substr(0, name.size() - contentsSuffix.size());
        contents_ = Contents{base, extension, false, navigator_ == base};
    } else if (contents_.has_value() && name == contents_->base + listingSuffix) {
        contents_->hasListing = true;
    }
}

void OpeningPage::fileCopied(const OrxString& target) {
    if (!navigator_.has_value() && target.view().ends_with(navigatorScript)) {
        navigator_ = OrxString(target.view().substr(0, target.length() - navigatorScript.size()));
    }
}

std::optional<OpeningPage::Answer> OpeningPage::answer() const {
    if (shortest_.isEmpty()) {
        return std::nullopt;
    }
    if (!contents_.has_value()) {
        return Answer{shortest_, false};
    }
    const bool opensListing = contents_->hasListing && !contents_->hasNavigator;
    return Answer{contents_->base + (opensListing ? listingSuffix : "") + contents_->extension,
                  !contents_->hasListing && !contents_->hasNavigator};
}

}  // namespace quillmark::replay
