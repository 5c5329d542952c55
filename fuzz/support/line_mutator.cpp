#include "support/line_mutator.h"

#include <algorithm>
#include <cstring>

namespace quillmark::fuzzing {
namespace {

std::vector<std::string> linesOf(std::string_view text) {
    std::vector<std::string> lines;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        lines.emplace_back(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return lines;
}

}  // namespace

LineMutator::LineMutator(std::string_view text, unsigned seed)
    : random_(seed), lines_(linesOf(text)) {}

void LineMutator::change(const Maker& makeLine) {
    for (std::size_t times = 1 + below(4); times > 0; --times) {
        changeOnce(makeLine);
    }
}

void LineMutator::changeOnce(const Maker& makeLine) {
    constexpr std::size_t kinds = 6;
    const std::size_t kind = lines_.empty() ? 0 : below(kinds);
    const auto place = lines_.begin() + static_cast<std::ptrdiff_t>(below(lines_.size() + 1));
    if (kind < 2 || place == lines_.end()) {
        lines_.insert(place, makeLine(random_));
    } else if (kind == 2) {
        *place = makeLine(random_);
    } else if (kind == 3) {
        lines_.erase(place);
    } else if (kind == 4) {
        const std::string copy = *place;
        lines_.insert(lines_.begin() + static_cast<std::ptrdiff_t>(below(lines_.size() + 1)), copy);
    } else {
        std::iter_swap(place, lines_.begin() + static_cast<std::ptrdiff_t>(below(lines_.size())));
    }
}

void LineMutator::insertFrom(std::string_view other) {
    const std::vector<std::string> others = linesOf(other);
    if (others.empty()) {
        return;
    }
    const std::size_t first = below(others.size());
    const std::size_t count = 1 + below(others.size() - first);
    const auto place = lines_.begin() + static_cast<std::ptrdiff_t>(below(lines_.size() + 1));
    const auto begin = others.begin() + static_cast<std::ptrdiff_t>(first);
    lines_.insert(place, begin, begin + static_cast<std::ptrdiff_t>(count));
}

std::size_t LineMutator::write(std::uint8_t* data, std::size_t room) const {
    std::size_t size = 0;
    for (const std::string& line : lines_) {
        if (size + line.size() + 1 > room) {
            break;
        }
        std::memcpy(data + size, line.data(), line.size());
        size += line.size();
        data[size++] = '\n';
    }
    return size;
}

}  // namespace quillmark::fuzzing
