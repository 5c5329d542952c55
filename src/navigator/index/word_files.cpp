#include "navigator/index/word_files.h"

#include <algorithm>

#include "foundation/surrogates.h"
#include "foundation/utf8.h"
#include "navigator/data/json_text.h"
#include "navigator/data/number_list_text.h"

namespace quillmark {

void WordFiles::add(std::string_view word, std::span<const std::uint32_t> entries,
                    std::span<const std::uint32_t> pages) {
    std::u16string wide = utf8::toUtf16(word);
    lists_ = ",";
    number_list_text::append(lists_, entries);
    lists_.push_back(',');
    number_list_text::append(lists_, pages);
    lists_.push_back(';');
    startRecord(wide, sharedWithLast(wide));
    if (text_.empty() || text_.size() + record_.size() + lists_.size() > largestText) {
        writeFile();
        startRecord(wide, 0);
        firstWords_.append(firstWords_.empty() ? "" : ",");
        json_text::appendString(firstWords_, wide);
    }
    text_.append(record_).append(lists_);
    last_ = std::move(wide);
}

std::size_t WordFiles::sharedWithLast(std::u16string_view word) const noexcept {
    const auto [inWord, inLast] = std::ranges::mismatch(word, last_);
    const auto same = static_cast<std::size_t>(inWord - word.begin());
    const std::size_t shared = std::min(same, number_list_text::alphabet.size() - 1);
    // The units of a surrogate pair stay together.
    return shared > 0 && surrogates::isHigh(word[shared - 1]) ? shared - 1 : shared;
}

void WordFiles::startRecord(std::u16string_view word, std::size_t shared) {
    record_.assign(1, number_list_text::alphabet[shared]);
    json_text::appendCharacters(record_, word.substr(shared));
}

void WordFiles::writeFile() {
    if (!text_.empty()) {
        files_.write("word", written_++, "\"" + text_ + "\"");
        text_.clear();
    }
}

void WordFiles::finish() {
    writeFile();
    files_.write("index", "[" + firstWords_ + "]");
}

}  // namespace quillmark
