#include "common/varied_report.h"

#include <array>
#include <cmath>
#include <cstdint>
#include <vector>

#include "common/texts.h"

namespace quillmark::bench::varied_report {

namespace {

constexpr std::size_t vocabulary = 50'000;
constexpr std::size_t paragraphCount = 4'000;
constexpr std::size_t paragraphsPerPage = 12;
constexpr std::size_t wordsPerParagraph = 80;

/// The same numbers in every run.
class Numbers {
public:
    /// From 0 up to 1, without it.
    double next() {
        state_ = state_ * 6364136223846793005U + 1442695040888963407U;
        return static_cast<double>(state_ >> 11U) / static_cast<double>(1ULL << 53U);
    }

private:
    std::uint64_t state_ = 14;
};

/// A word of a vocabulary; the first ones are the shortest.
std::u16string wordOf(std::size_t rank) {
    constexpr std::array<const char16_t*, 16> syllables = {
        u"re",  u"la", u"to", u"mi", u"sen", u"con", u"der", u"pa",
        u"ver", u"ti", u"on", u"ex", u"um",  u"ist", u"ba",  u"ko"};
    std::u16string word;
    for (std::size_t rest = rank + 1; rest != 0; rest /= syllables.size()) {
        word += syllables[rest % syllables.size()];
    }
    return word;
}

/// Paragraphs in which the n-th word of the vocabulary comes 1/n times as often as the first.
const std::vector<std::u16string>& paragraphs() {
    static const std::vector<std::u16string> all = [] {
        Numbers numbers;
        std::vector<std::u16string> made(paragraphCount);
        for (std::u16string& text : made) {
            for (std::size_t word = 0; word < wordsPerParagraph; ++word) {
                const double rank = std::pow(static_cast<double>(vocabulary), numbers.next());
                text += wordOf(static_cast<std::size_t>(rank) - 1) + u' ';
            }
        }
        return made;
    }();
    return all;
}

const std::u16string& paragraphOf(std::size_t page, std::size_t part) {
    return paragraphs()[(page * paragraphsPerPage + part * part * 37) % paragraphCount];
}

void insertPage(IDocument& document, std::size_t number) {
    document.setStyle(u"Heading 1");
    document.insertText(numbered(u"Chapter ", number));
    document.insertEndl();
    document.setStyle(u"Normal");
    for (std::size_t part = 0; part < paragraphsPerPage; ++part) {
        document.insertText(paragraphOf(number, part));
        document.insertEndl();
    }
}

std::string textCall(const std::u16string& text) {
    return "[\"insertText\",\"" + std::string(text.begin(), text.end()) + "\"]\n[\"insertEndl\"]\n";
}

std::string pageCalls(std::size_t number) {
    std::string calls = "[\"setStyle\",\"Heading 1\"]\n";
    calls += textCall(numbered(u"Chapter ", number)) + "[\"setStyle\",\"Normal\"]\n";
    for (std::size_t part = 0; part < paragraphsPerPage; ++part) {
        calls += textCall(paragraphOf(number, part));
    }
    return calls;
}

}  // namespace

void prepare() {
    static_cast<void>(paragraphs());
}

void play(IDocument& document, std::size_t pages) {
    for (std::size_t number = 1; number <= pages; ++number) {
        if (number > 1) {
            document.insertPageBreak();
        }
        insertPage(document, number);
    }
}

std::string stream(std::size_t pages) {
    std::string calls = "[\"create\",\"report.htm\"]\n";
    for (std::size_t number = 1; number <= pages; ++number) {
        calls += (number > 1 ? "[\"insertPageBreak\"]\n" : "") + pageCalls(number);
    }
    return calls + "[\"close\"]\n";
}

}  // namespace quillmark::bench::varied_report
