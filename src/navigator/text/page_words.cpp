#include "navigator/text/page_words.h"

#include <algorithm>
#include <array>

#include "navigator/text/ascii_words.h"
#include "navigator/text/html_reference.h"
#include "navigator/text/html_tags.h"
#include "navigator/text/plain_text.h"

namespace quillmark {

namespace {

/// What ends a run of ASCII letters.
enum class Byte : unsigned char { separator, tag, reference, other };

constexpr std::array<Byte, 256> kinds = [] {
    std::array<Byte, 256> table{};
    std::fill(table.begin() + 0x80, table.end(), Byte::other);
    table['<'] = Byte::tag;
    table['&'] = Byte::reference;
    return table;
}();

Byte kindOf(char c) noexcept {
    return kinds[static_cast<unsigned char>(c)];
}

/// Named references are separators.
bool isLetterReference(std::string_view html) noexcept {
    return html.starts_with("&#") && html_reference::at(html).length != 0;
}

/// A separator in every encoding, wherever it stands.
bool separatesAlways(char c) noexcept {
    return c == '<' || static_cast<unsigned char>(c) < 0x30;
}

}  // namespace

void PageWords::read(std::span<const std::string_view> pieces) {
    join(pieces);
    const std::size_t start = html_tags::bodyStart(html_);
    fold(start);
    batch_.clear();
    readFrom(start);
    batch_.flush();
}

void PageWords::join(std::span<const std::string_view> pieces) {
    bytes_.clear();
    for (const std::string_view piece : pieces) {
        bytes_.append(piece);
    }
    html_ = bytes_;
}

void PageWords::fold(std::size_t start) {
    const std::size_t size = html_.size() + ShortWord::longest;
    if (folded_.size() < size) {
        folded_.resize(size);
    }
    ascii_words::fold(html_.substr(start), folded_.data() + start);
    folded_.replace(html_.size(), ShortWord::longest, ShortWord::longest, '\0');
}

void PageWords::readFrom(std::size_t at) {
    const std::size_t size = html_.size();
    const char* const bytes = bytes_.data();
    const char* const folded = folded_.data();
    while (at < size) {
        const ascii_words::Front front = ascii_words::frontOf(folded + at);
        const std::size_t end = at + front.length;
        if (front.length == ShortWord::longest) {
            at = readLongWord(at);
        } else if (kindOf(bytes[end]) == Byte::separator) {
            batch_.add(front.word);
            at = end + 1;
        } else if (goesOnAt(end)) {
            at = readSlowly(at);
        } else {
            batch_.add(front.word);
            at = behindSeparator(end);
        }
    }
}

/// Whether a character there belongs to the word in front of it, but is not an ASCII letter.
bool PageWords::goesOnAt(std::size_t at) const noexcept {
    const Byte kind = kindOf(bytes_[at]);
    return kind == Byte::other || (kind == Byte::reference && isLetterReference(html_.substr(at)));
}

std::size_t PageWords::behindSeparator(std::size_t at) const noexcept {
    switch (kindOf(bytes_[at])) {
        case Byte::tag:
            return std::max(at + 1, html_tags::endAt(html_, at));
        case Byte::reference:
            return at + std::max<std::size_t>(html_reference::at(html_.substr(at)).length, 1);
        default:
            return at + 1;
    }
}

std::size_t PageWords::readLongWord(std::size_t start) {
    const std::size_t end = folded_.find('\0', start);
    if (goesOnAt(end)) {
        return readSlowly(start);
    }
    batch_.flush();
    sink_.word(
        std::string_view(folded_).substr(start, std::min(end - start, WordSplitter::longestWord)));
    return end;
}

std::size_t PageWords::readSlowly(std::size_t start) {
    const std::size_t end = slowEnd(start);
    wide_.clear();
    decoder_.append(wide_, html_.substr(start, end - start));
    decoded_.clear();
    plain_text::appendDecoded(decoded_, wide_);
    batch_.flush();
    splitter_.split(decoded_);
    return end;
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
