#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

/// Lists of numbers as the search index has them.
namespace quillmark::number_list_text {

/// The characters for the values 0 to 63.
inline constexpr std::string_view alphabet =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-_";

/// Appends ascending numbers, as gaps or as bits, whichever is shorter.
void append(std::string& out, std::span<const std::uint32_t> numbers);

}  // namespace quillmark::number_list_text
