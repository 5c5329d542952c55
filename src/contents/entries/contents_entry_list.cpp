#include "contents/entries/contents_entry_list.h"

#include <algorithm>
#include <limits>
#include <stdexcept>
#include <utility>

#include "foundation/growth.h"
#include "host/document_observer.h"

namespace quillmark {

namespace {

constexpr std::size_t chunkSize = std::size_t{64} * 1024;

std::uint32_t asLength(std::size_t length) {
    if (length > std::numeric_limits<std::uint32_t>::max()) {
        throw std::length_error("a contents entry of 4 GiB");
    }
    return static_cast<std::uint32_t>(length);
}

}  // namespace

void ContentsEntryList::add(const ContentsEntryView& entry) {
    Record record;
    record.hrefLength = asLength(entry.href.size());
    record.textLength = asLength(entry.text.size());
    record.level = entry.level;
    record.gif = intern(entry.gif);
    record.stereoGif = intern(entry.stereoGif);
    std::string& chunk = chunkFor(entry.href.size() + entry.text.size());
    record.chunk = asLength(chunks_.size() - 1);
    record.offset = asLength(chunk.size());
    chunk.append(entry.href).append(entry.text);
    records_.push_back(record);
    DocumentObserver::current().contentsEntryAdded();
}

void ContentsEntryList::add(const HtmlTOCTag& tag) {
    const OrxString href = tag.getHref();
    const OrxString text = tag.getText();
    const OrxString gif = tag.getGif();
    const OrxString stereoGif = tag.getStereoGif();
    add(ContentsEntryView{href, text, tag.getLevel(), gif, stereoGif});
}

void ContentsEntryList::clear() noexcept {
    records_.clear();
    chunks_.clear();
    icons_.clear();
    iconNumbers_.clear();
}

ContentsEntryView ContentsEntryList::operator[](std::size_t index) const {
    const Record& record = records_[index];
    const std::string_view chunk = chunks_[record.chunk];
    return {chunk.substr(record.offset, record.hrefLength),
            chunk.substr(std::size_t{record.offset} + record.hrefLength, record.textLength),
            record.level, icons_[record.gif], icons_[record.stereoGif]};
}

HtmlTOCTag ContentsEntryList::tag(std::size_t index) const {
    const ContentsEntryView entry = (*this)[index];
    HtmlTOCTag tag;
    tag.setHref(entry.href);
    tag.setText(entry.text);
    tag.setLevel(entry.level);
    tag.setGif(entry.gif);
    tag.setStereoGif(entry.stereoGif);
    return tag;
}

/// The last chunk, or a new one if that has too little room. A chunk is reserved at its full size,
/// so its texts never move. An entry larger than `chunkSize` gets a chunk of its own.
std::string& ContentsEntryList::chunkFor(std::size_t bytes) {
    if (chunks_.empty() || chunks_.back().size() + bytes > chunkSize) {
        std::string chunk;
        chunk.reserve(std::max(bytes, chunkSize));
        chunks_.push_back(std::move(chunk));
    }
    return chunks_.back();
}

std::uint32_t ContentsEntryList::intern(std::string_view icon) {
    const auto known = iconNumbers_.find(icon);
    if (known != iconNumbers_.end()) {
        return known->second;
    }
    const std::uint32_t number = asLength(icons_.size());
    makeRoomForOne(icons_);
    std::string name(icon);
    iconNumbers_.emplace(icon, number);
    icons_.push_back(std::move(name));
    return number;
}

}  // namespace quillmark
