#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

#include "navigator/text/text_decoder.h"
#include "navigator/text/word_batch.h"
#include "navigator/text/word_sink.h"
#include "navigator/text/word_splitter.h"

namespace quillmark {

/// Finds the words of pages. Words of ASCII letters, which are nearly all, are read eight bytes at
/// a time; what surrounds another character is decoded and split the long way.
class PageWords {
public:
    /// The objects must outlive this one.
    PageWords(const TextDecoder& decoder, WordSink& sink) noexcept
        : decoder_(decoder), sink_(sink), batch_(sink), splitter_(sink) {}

    /// Passes the words behind the BODY tag to the sink. The pieces form one page.
    void read(std::span<const std::string_view> pieces);

private:
    void join(std::span<const std::string_view> pieces);
    void fold(std::size_t start);
    void readFrom(std::size_t at);
    /// Reads the word of more than `ShortWord::longest` letters at `start`, and returns its end.
    [[nodiscard]] std::size_t readLongWord(std::size_t start);
    /// Reads from `start` up to the next separator the long way, and returns where that is.
    [[nodiscard]] std::size_t readSlowly(std::size_t start);
    [[nodiscard]] bool goesOnAt(std::size_t at) const noexcept;
    [[nodiscard]] std::size_t behindSeparator(std::size_t at) const noexcept;
    [[nodiscard]] std::size_t slowEnd(std::size_t start) const noexcept;

    const TextDecoder& decoder_;
    WordSink& sink_;
    WordBatch batch_;
    WordSplitter splitter_;
    /// The page. The zero behind it is a separator.
    std::string bytes_;
    std::string_view html_;
    /// The same, folded, with zeros at the end, so that whole blocks can be read anywhere.
    std::string folded_;
    std::u16string wide_;
    std::u16string decoded_;
};

}  // namespace quillmark
