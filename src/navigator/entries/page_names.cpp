#include "navigator/entries/page_names.h"

#include <charconv>
#include <string>

namespace quillmark {

namespace {

/// A number as the driver writes it: without a sign and without leading zeros.
std::optional<std::uint32_t> numberIn(std::string_view digits) noexcept {
    std::uint32_t number = 0;
    const char* const end = digits.data() + digits.size();
    const auto [stop, error] = std::from_chars(digits.data(), end, number);
    if (error != std::errc() || stop != end || digits.front() == '0') {
        return std::nullopt;
    }
    return number;
}

/// The file of a link, without its directories and its fragment.
std::string_view fileOf(std::string_view href) noexcept {
    href = href.substr(0, href.rfind('#'));
    return href.substr(href.rfind('/') + 1);
}

/// "%41" as "A".
std::string unescaped(std::string_view file) {
    std::string bytes;
    while (!file.empty()) {
        unsigned char byte = 0;
        if (file.front() == '%' && file.size() > 2 &&
            std::from_chars(file.data() + 1, file.data() + 3, byte, 16).ptr == file.data() + 3) {
            bytes.push_back(static_cast<char>(byte));
            file.remove_prefix(3);
        } else {
            bytes.push_back(file.front());
            file.remove_prefix(1);
        }
    }
    return bytes;
}

std::optional<std::uint32_t> numberOfFile(std::string_view file, const PageNames& names) noexcept {
    const std::size_t around = names.name.length() + names.extension.length();
    if (file.size() < around || !file.starts_with(names.name) || !file.ends_with(names.extension)) {
        return std::nullopt;
    }
    const std::string_view digits = file.substr(names.name.length(), file.size() - around);
    if (digits.empty()) {
        return 1;
    }
    return digits == "1" ? std::nullopt : numberIn(digits);
}

}  // namespace

std::optional<std::uint32_t> PageNames::pageNumber(std::string_view href) const {
    const std::string_view file = fileOf(href);
    const auto number = numberOfFile(file, *this);
    return number.has_value() || file.find('%') == std::string_view::npos
               ? number
               : numberOfFile(unescaped(file), *this);
}

std::optional<std::uint32_t> anchorNumber(std::string_view href) noexcept {
    constexpr std::string_view opening = "#toc";
    const std::size_t start = href.rfind(opening);
    if (start == std::string_view::npos || start + opening.size() == href.size()) {
        return std::nullopt;
    }
    return numberIn(href.substr(start + opening.size()));
}

}  // namespace quillmark
