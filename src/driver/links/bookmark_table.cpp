#include "driver/links/bookmark_table.h"

#include "foundation/growth.h"
#include "platform/files/path_text.h"

namespace quillmark {

BookmarkTable::Id BookmarkTable::add(std::string_view name) {
    if (lastAdded_ != unknown && names_.name(lastAdded_) == name) {
        return lastAdded_;
    }
    makeRoomForOne(records_);
    lastAdded_ = names_.add(name);
    if (lastAdded_ == records_.size()) {
        records_.emplace_back();
    }
    return lastAdded_;
}

void BookmarkTable::define(Id id, const OrxString& pageFile) {
    // Bookmarks come page by page, so comparing with the last file avoids duplicates.
    const auto files = static_cast<std::uint32_t>(pageFiles_.size());
    const bool known = files != 0 && pageFiles_[files - 1] == pageFile.view();
    records_[id].pageFile = known ? files - 1 : pageFiles_.add(pageFile);
}

std::string_view BookmarkTable::pageFile(Id id) const noexcept {
    return pageFiles_[records_[id].pageFile];
}

OrxString BookmarkTable::reference(Id id) const {
    const std::string_view file = pageFile(id);
    const std::string_view filePart = file.substr(path_text::fileStart(file));
    const std::string_view name = names_.name(id);
    std::string text;
    text.reserve(filePart.size() + 1 + name.size());
    return text.append(filePart).append("#").append(name);
}

void BookmarkTable::clear() noexcept {
    *this = BookmarkTable();
}

}  // namespace quillmark
