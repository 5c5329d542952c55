#include "navigator/index/word_index.h"

#include <algorithm>
#include <array>
#include <numeric>
#include <vector>

#include "navigator/index/word_files.h"

namespace quillmark {

void WordIndex::startPage(std::uint32_t page) {
    pages_.startPlace(page);
    onPage_ = true;
    inEntry_ = false;
}

void WordIndex::startEntry(std::uint32_t entry) {
    entries_.startPlace(entry);
    onPage_ = false;
    inEntry_ = true;
}

void WordIndex::startEntry(std::uint32_t entry, std::uint32_t page) {
    startPage(page);
    entries_.startPlace(entry);
    inEntry_ = true;
}

void WordIndex::words(std::span<const FoldedWord> words) {
    std::array<WordTable::Id, mostAtOnce> numbers{};
    words_.add(words, numbers);
    for (const WordTable::Id number : std::span(numbers).first(words.size())) {
        if (onPage_) {
            pages_.add(number);
        }
        if (inEntry_) {
            entries_.add(number);
        }
    }
}

void WordIndex::write(const DataFiles& files) const {
    std::vector<WordTable::Id> order(words_.size());
    std::iota(order.begin(), order.end(), WordTable::Id{0});
    std::ranges::sort(order, {}, [this](WordTable::Id id) { return words_.word(id); });
    const Postings::Sorted pages = pages_.sorted(words_.size());
    const Postings::Sorted entries = entries_.sorted(words_.size());
    WordFiles wordFiles(files);
    for (const WordTable::Id id : order) {
        wordFiles.add(words_.word(id), entries.of(id), pages.of(id));
    }
    wordFiles.finish();
}

}  // namespace quillmark
