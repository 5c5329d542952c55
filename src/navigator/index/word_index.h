#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

#include "navigator/data/data_files.h"
#include "navigator/index/postings.h"
#include "navigator/index/word_table.h"
#include "navigator/text/word_sink.h"

namespace quillmark {

/// The search index: which words are in which entries and on which pages. It takes the words of
/// the place that was started last.
///
/// Besides the words it needs four bytes for each pair of a word and a place, and as much again
/// while it is written.
class WordIndex final : public WordSink {
public:
    /// The following words are on this page, numbered from 0.
    void startPage(std::uint32_t page);
    /// The following words are in the text of this entry.
    void startEntry(std::uint32_t entry);
    /// The following words are in the text of an entry, and on the page that it leads to.
    void startEntry(std::uint32_t entry, std::uint32_t page);
    void word(std::string_view word) override;
    void shortWords(std::span<const ShortWord> words) override;
    /// Forgets the entries, but not the pages of their words.
    void clearEntries() noexcept { entries_.clear(); }

    /// Writes "index" and the files of words.
    void write(const DataFiles& files) const;

    [[nodiscard]] std::size_t wordCount() const noexcept { return words_.size(); }
    /// How many pairs of a word and a place it holds.
    [[nodiscard]] std::size_t pairs() const noexcept { return pages_.pairs() + entries_.pairs(); }

private:
    void start(bool onPage, bool inEntry) noexcept;
    void addPairs(std::span<const WordTable::Id> words);

    WordTable words_;
    Postings pages_;
    Postings entries_;
    /// Words with this mark are at the place already.
    WordTable::Mark mark_ = 0;
    bool onPage_ = false;
    bool inEntry_ = false;
};

}  // namespace quillmark
