#include "navigator/text/word_splitter.h"

#include "foundation/ascii.h"
#include "foundation/utf8.h"
#include "navigator/text/utf16.h"

namespace quillmark {

void WordSplitter::split(std::u16string_view text) {
    for (std::size_t at = 0; at < text.size();) {
        add(utf16::take(text, at));
    }
    endRun();
}

void WordSplitter::add(char32_t point) {
    const code_points::Folded folded = code_points::fold(point);
    switch (folded.kind) {
        case code_points::Kind::letter:
            addLetter(point, folded);
            break;
        case code_points::Kind::ideograph:
            addIdeograph(folded.point);
            break;
        case code_points::Kind::separator:
            endRun();
            break;
        case code_points::Kind::nothing:
            break;
    }
}

void WordSplitter::addLetter(char32_t point, const code_points::Folded& folded) {
    if (ideograph_ != 0) {
        endRun();
    }
    // The rest of a long word is needed only for the words within it.
    if (within_ == Within::whole && run_.size() >= longestWord) {
        return;
    }
    if (within_ == Within::alsoWithin) {
        letters_.push_back({run_.size(), asciiOf(point)});
    }
    if (folded.letters.empty()) {
        run_.push_back(folded.point);
    } else {
        run_.append(folded.letters.begin(), folded.letters.end());
    }
}

void WordSplitter::addIdeograph(char32_t point) {
    if (ideograph_ == 0) {
        endRun();
    } else {
        run_.assign({ideograph_, point});
        putWord(0);
        run_.clear();
    }
    ideograph_ = point;
}

void WordSplitter::endRun() {
    if (ideograph_ != 0) {
        run_.assign(1, ideograph_);
        ideograph_ = 0;
    }
    if (run_.empty()) {
        return;
    }
    putWord(0);
    for (std::size_t letter = 1; letter < letters_.size(); ++letter) {
        if (beginsWithin(letter)) {
            putWord(letters_[letter].start);
        }
    }
    run_.clear();
    letters_.clear();
}

void WordSplitter::putWord(std::size_t start) {
    word_.clear();
    for (const char32_t point : std::u32string_view(run_).substr(start, longestWord)) {
        utf8::append(word_, point);
    }
    sink_.word(word_);
}

bool WordSplitter::beginsWithin(std::size_t letter) const noexcept {
    if (letters_[letter].ascii != Ascii::capital) {
        return false;
    }
    const Ascii before = letters_[letter - 1].ascii;
    const bool smallFollows =
        letter + 1 < letters_.size() && letters_[letter + 1].ascii == Ascii::small;
    return before == Ascii::small || before == Ascii::digit ||
           (before == Ascii::capital && smallFollows);
}

WordSplitter::Ascii WordSplitter::asciiOf(char32_t point) noexcept {
    if (point >= U'0' && point <= U'9') {
        return Ascii::digit;
    }
    if (!ascii::isLetter(point)) {
        return Ascii::other;
    }
    return point <= U'Z' ? Ascii::capital : Ascii::small;
}

}  // namespace quillmark
