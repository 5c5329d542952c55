#include "navigator/index/word_index.h"

#include <array>
#include <vector>

#include "navigator/index/word_files.h"

namespace quillmark {

void WordIndex::start(bool onPage, bool inEntry) noexcept {
    ++mark_;
    onPage_ = onPage;
    inEntry_ = inEntry;
}

void WordIndex::startPage(std::uint32_t page) {
    pages_.startPlace(page);
    start(true, false);
}

void WordIndex::startEntry(std::uint32_t entry) {
    entries_.startPlace(entry);
    start(false, true);
}

void WordIndex::startEntry(std::uint32_t entry, std::uint32_t page) {
    pages_.startPlace(page);
    entries_.startPlace(entry);
    start(true, true);
}

void WordIndex::word(std::string_view word) {
    std::array<WordTable::Id, 1> numbers{};
    addPairs(std::span(numbers).first(words_.addUnmarked(word, mark_, numbers)));
}

void WordIndex::shortWords(std::span<const ShortWord> words) {
    std::array<WordTable::Id, mostAtOnce> numbers{};
    addPairs(std::span(numbers).first(words_.addUnmarked(words, mark_, numbers)));
}

void WordIndex::addPairs(std::span<const WordTable::Id> words) {
    if (onPage_) {
        pages_.add(words);
    }
    if (inEntry_) {
        entries_.add(words);
    }
}

void WordIndex::write(const DataFiles& files) const {
    const std::vector<WordTable::Id> order = words_.ascending();
    const Postings::Sorted pages = pages_.sorted(words_.size());
    const Postings::Sorted entries = entries_.sorted(words_.size());
    WordFiles wordFiles(files);
    for (const WordTable::Id id : order) {
        wordFiles.add(words_.word(id), entries.of(id), pages.of(id));
    }
    wordFiles.finish();
}

}  // namespace quillmark
