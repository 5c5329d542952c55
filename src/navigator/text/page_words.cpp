#include "navigator/text/page_words.h"

#include <algorithm>
#include <array>

#include "navigator/text/ascii_words.h"
#include "navigator/text/html_reference.h"
#include "navigator/text/html_tags.h"
#include "navigator/text/plain_text.h"

namespace quillmark {

namespace {

constexpr std::size_t blockSize = FoldedWord::blockSize;

enum class Byte : unsigned char { separator, letter, tag, reference, other };

constexpr std::array<Byte, 256> bytes = [] {
    std::array<Byte, 256> table{};
    for (std::size_t byte = 0; byte < table.size(); ++byte) {
        const bool isLetter = (byte >= '0' && byte <= '9') || (byte >= 'A' && byte <= 'Z') ||
                              (byte >= 'a' && byte <= 'z');
        table[byte] = isLetter ? Byte::letter : byte < 0x80 ? Byte::separator : Byte::other;
    }
    table['<'] = Byte::tag;
    table['&'] = Byte::reference;
    return table;
}();

Byte kindOf(char c) noexcept {
    return bytes[static_cast<unsigned char>(c)];
}

/// A separator in every encoding, wherever it stands.
bool separatesAlways(char c) noexcept {
    return c == '<' || static_cast<unsigned char>(c) < 0x30;
}

}  // namespace

void PageWords::read(std::span<const std::string_view> pieces) {
    bytes_.clear();
    for (const std::string_view piece : pieces) {
        bytes_.append(piece);
    }
    const std::size_t size = bytes_.size();
    bytes_.append(blockSize, '\0');
    html_ = std::string_view(bytes_).substr(0, size);
    at_ = html_tags::bodyStart(html_);
    batch_.clear();
    readBody();
    batch_.flush();
}

void PageWords::readBody() {
    while (at_ < html_.size()) {
        switch (kindOf(html_[at_])) {
            case Byte::letter:
                readWord();
                break;
            case Byte::separator:
                ++at_;
                break;
            case Byte::tag:
                at_ = std::max(at_ + 1, html_tags::endAt(html_, at_));
                break;
            case Byte::reference:
                readReference();
                break;
            case Byte::other:
                readSlowly(at_);
                break;
        }
    }
}

void PageWords::readWord() {
    static_assert(WordBatch::longestWord == WordSplitter::longestWord);
    static_assert(WordBatch::longestWord % blockSize == 0);
    char* const word = batch_.next();
    const char* const html = html_.data();
    std::size_t at = at_;
    std::size_t length = 0;
    ascii_words::Block block{};
    do {
        block = ascii_words::classify(ascii_words::load(html + at));
        if (length < WordBatch::longestWord) {
            ascii_words::store(word + length, block.letters);
            length += block.length;
        }
        at += block.length;
    } while (block.length == blockSize);
    // Behind the page are zeros, which are separators.
    const Byte next = kindOf(html[at]);
    if (next == Byte::other || (next == Byte::reference && isLetterReference(at))) {
        readSlowly(at_);
        return;
    }
    at_ = at;
    batch_.add(length);
}

/// Named references are separators.
bool PageWords::isLetterReference(std::size_t at) const noexcept {
    return html_.substr(at).starts_with("&#") && html_reference::at(html_.substr(at)).length != 0;
}

void PageWords::readReference() {
    if (isLetterReference(at_)) {
        readSlowly(at_);
    } else {
        at_ += std::max<std::size_t>(html_reference::at(html_.substr(at_)).length, 1);
    }
}

void PageWords::readSlowly(std::size_t start) {
    at_ = slowEnd(start);
    wide_.clear();
    decoder_.append(wide_, html_.substr(start, at_ - start));
    decoded_.clear();
    plain_text::appendDecoded(decoded_, wide_);
    batch_.flush();
    splitter_.split(decoded_);
}

std::size_t PageWords::slowEnd(std::size_t start) const noexcept {
    std::size_t at = start;
    while (at < html_.size()) {
        if (html_[at] == '&') {
            const HtmlReference reference = html_reference::at(html_.substr(at));
            if (reference.length == 0) {
                break;
            }
            at += reference.length;
        } else if (separatesAlways(html_[at])) {
            break;
        } else {
            ++at;
        }
    }
    return at;
}

}  // namespace quillmark
