#include "replay/tool/messages.h"

#include <algorithm>
#include <array>
#include <iomanip>

namespace quillmark::replay {

namespace {

constexpr std::chrono::milliseconds longRun{1000};
constexpr std::chrono::milliseconds progressInterval{200};

char shownCharacter(char c) noexcept {
    if (c == '\n') {
        return ' ';
    }
    return static_cast<unsigned char>(c) < ' ' || c == '\x7F' ? '?' : c;
}

}  // namespace

Messages::Messages(std::ostream& stream, bool progress)
    : stream_(stream), showsProgress_(progress), nextProgress_(Clock::now() + longRun) {}

void Messages::write(std::string_view line) {
    clearProgress();
    // In pieces, because a message must also come out when there is no memory for a copy.
    std::array<char, 512> piece{};
    while (!line.empty()) {
        const std::string_view next = line.substr(0, piece.size());
        std::ranges::transform(next, piece.begin(), shownCharacter);
        stream_.write(piece.data(), static_cast<std::streamsize>(next.size()));
        line.remove_prefix(next.size());
    }
    stream_ << '\n' << std::flush;
}

void Messages::progress(std::size_t calls, std::size_t pages) {
    if (!showsProgress_ || Clock::now() < nextProgress_) {
        return;
    }
    nextProgress_ = Clock::now() + progressInterval;
    const std::string text =
        counted(calls, "call") + ", " + counted(pages, "page") + " written ...";
    stream_ << '\r' << text << std::flush;
    shown_ = std::max(shown_, text.size());
}

void Messages::clearProgress() {
    if (shown_ > 0) {
        stream_ << '\r' << std::setw(static_cast<int>(shown_)) << "" << '\r' << std::flush;
        shown_ = 0;
    }
}

std::string counted(std::size_t count, std::string_view word, std::string_view plural) {
    std::string text = std::to_string(count) + ' ';
    if (count == 1 || plural.empty()) {
        text += word;
        return count == 1 ? text : text + 's';
    }
    return text.append(plural);
}

}  // namespace quillmark::replay
