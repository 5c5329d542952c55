#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "navigator/text/code_points.h"
#include "navigator/text/word_sink.h"

namespace quillmark {

/// Splits text into the words that a search finds. Runs of letters are words, folded and cut to
/// `longestWord` code points; each ideograph forms a word with its successor.
class WordSplitter {
public:
    static constexpr std::size_t longestWord = 32;
    /// Whether "OrderLine" gives "line" as well.
    enum class Within { whole, alsoWithin };

    explicit WordSplitter(WordSink& sink, Within within = Within::whole) noexcept
        : sink_(sink), within_(within) {}

    /// Passes the words of `text` to the sink. The text begins and ends between words.
    void split(std::u16string_view text);

private:
    /// The part of ASCII that a letter is from; it decides where a word within a word begins.
    enum class Ascii : std::uint8_t { other, capital, small, digit };
    struct Letter {
        std::size_t start;
        Ascii ascii;
    };

    void add(char32_t point);
    void addLetter(char32_t point, const code_points::Folded& folded);
    void addIdeograph(char32_t point);
    void endRun();
    void putWord(std::size_t start);
    [[nodiscard]] bool beginsWithin(std::size_t letter) const noexcept;
    [[nodiscard]] static Ascii asciiOf(char32_t point) noexcept;

    WordSink& sink_;
    Within within_;
    /// The letters of the run, folded.
    std::u32string run_;
    std::vector<Letter> letters_;
    /// The last ideograph, which waits for its successor; 0 for none.
    char32_t ideograph_ = 0;
    std::string word_;
};

}  // namespace quillmark
