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
        : decoder_(decoder), batch_(sink), splitter_(sink) {}

    /// Passes the words behind the BODY tag to the sink. The pieces form one page.
    void read(std::span<const std::string_view> pieces);

private:
    void readBody();
    void readWord();
    void readReference();
    [[nodiscard]] bool isLetterReference(std::size_t at) const noexcept;
    /// Reads from `start` up to the next separator the long way.
    void readSlowly(std::size_t start);
    [[nodiscard]] std::size_t slowEnd(std::size_t start) const noexcept;

    const TextDecoder& decoder_;
    WordBatch batch_;
    WordSplitter splitter_;
    /// The page, with a few zero bytes at its end, so that eight bytes can be read anywhere.
    std::string bytes_;
    std::string_view html_;
    std::size_t at_ = 0;
    std::u16string wide_;
    std::u16string decoded_;
};

}  // namespace quillmark
