#include "settings/ini_text.h"

#include <algorithm>

#include "foundation/ascii.h"

namespace quillmark {

namespace {

constexpr std::string_view blanks = " \t\r\v\f";

std::string_view trimmed(std::string_view text) noexcept {
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

/// The name in a section line such as "[name]". Nothing for any other line.
std::optional<std::string_view> sectionName(std::string_view line) noexcept {
    const std::string_view text = trimmed(line);
    const std::size_t closing = text.rfind(']');
    if (!text.starts_with('[') || closing == std::string_view::npos) {
        return std::nullopt;
    }
    return trimmed(text.substr(1, closing - 1));
}

bool isComment(std::string_view line) noexcept {
    return trimmed(line).starts_with(';');
}

/// The key in a "key=value" line. Nothing for any other line.
std::optional<std::string_view> keyOf(std::string_view line) noexcept {
    const std::size_t equals = line.find('=');
    if (equals == std::string_view::npos || isComment(line) || sectionName(line)) {
        return std::nullopt;
    }
    return trimmed(line.substr(0, equals));
}

bool isQuoted(std::string_view value) noexcept {
    return value.size() >= 2 && value.front() == value.back() &&
           (value.front() == '"' || value.front() == '\'');
}

std::string_view valueOf(std::string_view line) noexcept {
    const std::string_view value = trimmed(line.substr(line.find('=') + 1));
    return isQuoted(value) ? value.substr(1, value.size() - 2) : value;
}

/// Puts a value into quotes if it would otherwise lose blanks or quotes when it is read.
std::string lineFor(std::string_view key, std::string_view value) {
    const bool needsQuotes = isQuoted(value) || trimmed(value) != value;
    const std::string_view quote = needsQuotes ? "\"" : "";
    return std::string(key).append("=").append(quote).append(value).append(quote);
}

bool isOneLine(std::string_view text) noexcept {
    return text.find_first_of(std::string_view("\n\r\0", 3)) == std::string_view::npos;
}

bool canBeSection(std::string_view name) noexcept {
    return isOneLine(name) && trimmed(name) == name && name.find(']') == std::string_view::npos;
}

bool canBeKey(std::string_view name) noexcept {
    return !name.empty() && isOneLine(name) && trimmed(name) == name && !name.starts_with('[') &&
           !name.starts_with(';') && name.find('=') == std::string_view::npos;
}

}  // namespace

IniText::IniText(std::string_view text) : endsInLineEnd_(text.empty() || text.ends_with('\n')) {
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        std::string_view line = text.substr(0, end);
        const bool twoBytes = end != std::string_view::npos && line.ends_with('\r');
        if (twoBytes) {
            line.remove_suffix(1);
        }
        if (lines_.empty() && twoBytes) {
            lineEnd_ = "\r\n";
        }
        lines_.emplace_back(line);
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    }
}

std::optional<std::string> IniText::value(std::string_view section, std::string_view key) const {
    const std::optional<Range> range = findSection(section);
    const std::optional<std::size_t> line = range ? findKey(*range, key) : std::nullopt;
    return line ? std::optional(std::string(valueOf(lines_[*line]))) : std::nullopt;
}

bool IniText::set(std::string_view section, std::string_view key, std::string_view newValue) {
    if (!canBeSection(section) || !canBeKey(key) || !isOneLine(newValue)) {
        return false;
    }
    const std::string line = lineFor(key, newValue);
    const std::optional<Range> range = findSection(section);
    if (!range) {
        lines_.push_back(std::string("[").append(section).append("]"));
        lines_.push_back(line);
        endsInLineEnd_ = true;
        return true;
    }
    if (const std::optional<std::size_t> old = findKey(*range, key)) {
        lines_[*old] = line;
        return true;
    }
    // Blank lines before the next section stay before it.
    std::size_t place = range->end;
    while (place > range->first && trimmed(lines_[place - 1]).empty()) {
        --place;
    }
    lines_.insert(lines_.begin() + static_cast<std::ptrdiff_t>(place), line);
    return true;
}

std::string IniText::text() const {
    std::string result;
    for (const std::string& line : lines_) {
        result.append(line).append(lineEnd_);
    }
    if (!endsInLineEnd_) {
        result.resize(result.size() - lineEnd_.size());
    }
    return result;
}

std::optional<std::size_t> IniText::firstUnknownLine() const {
    const auto odd = std::ranges::find_if(lines_, [](std::string_view line) {
        const bool known = trimmed(line).empty() || isComment(line) ||
                           trimmed(line).starts_with('#') || sectionName(line) || keyOf(line);
        return !known || line.find('\0') != std::string_view::npos;
    });
    if (odd == lines_.end()) {
        return std::nullopt;
    }
    return static_cast<std::size_t>(odd - lines_.begin()) + 1;
}

std::optional<IniText::Range> IniText::findSection(std::string_view section) const {
    for (std::size_t i = 0; i < lines_.size(); ++i) {
        const std::optional<std::string_view> name = sectionName(lines_[i]);
        if (name && ascii::equalIgnoringCase(*name, section)) {
            std::size_t end = i + 1;
            while (end < lines_.size() && !sectionName(lines_[end])) {
                ++end;
            }
            return Range{i + 1, end};
        }
    }
    return std::nullopt;
}

std::optional<std::size_t> IniText::findKey(Range range, std::string_view key) const {
    for (std::size_t i = range.first; i < range.end; ++i) {
        const std::optional<std::string_view> name = keyOf(lines_[i]);
        if (name && ascii::equalIgnoringCase(*name, key)) {
            return i;
        }
    }
    return std::nullopt;
}

}  // namespace quillmark
