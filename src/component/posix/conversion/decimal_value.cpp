#include "component/posix/conversion/decimal_value.h"

#include <charconv>
#include <limits>
#include <string_view>
#include <utility>

namespace quillmark {
namespace {

/// The number of digits before the decimal point. Zero or negative for a number below 1.
std::int64_t wholeDigits(const DecimalValue& value) noexcept {
    return static_cast<std::int64_t>(value.digits.size()) + value.exponent;
}

/// Whether the fraction, given by its digits after the decimal point, rounds the whole number up.
bool roundsUp(std::string_view fraction, bool wholeIsOdd) noexcept {
    if (fraction.empty() || fraction.front() != '5') {
        return !fraction.empty() && fraction.front() > '5';
    }
    return wholeIsOdd || fraction.find_first_not_of('0', 1) != std::string_view::npos;
}

}  // namespace

DecimalValue decimalOf(bool isNegative, std::string digits, std::int64_t exponent) {
    digits.erase(0, digits.find_first_not_of('0'));
    return {isNegative, std::move(digits), exponent};
}

std::optional<std::int64_t> roundedToWhole(const DecimalValue& value) {
    constexpr std::int64_t mostDigits = std::numeric_limits<std::int64_t>::digits10;
    const std::int64_t places = wholeDigits(value);
    if (value.digits.empty() || places < 0) {
        return 0;
    }
    if (places > mostDigits) {
        return std::nullopt;
    }
    const std::string_view digits = value.digits;
    const auto count = static_cast<std::size_t>(places);
    std::int64_t whole = 0;
    for (std::size_t i = 0; i < count; ++i) {
        whole = whole * 10 + (i < digits.size() ? digits[i] - '0' : 0);
    }
    if (count < digits.size() && roundsUp(digits.substr(count), whole % 2 != 0)) {
        ++whole;
    }
    return value.isNegative ? -whole : whole;
}

double realOf(const DecimalValue& value) {
    const std::string text =
        (value.isNegative ? "-0" : "0") + value.digits + 'e' + std::to_string(value.exponent);
    double real = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), real);
    if (error == std::errc::result_out_of_range && wholeDigits(value) > 0) {
        return std::numeric_limits<double>::infinity();
    }
    return error == std::errc() ? real : 0;
}

std::string shownInFull(const DecimalValue& value) {
    if (value.digits.empty()) {
        return "0";
    }
    std::string shown = value.digits;
    if (value.exponent >= 0) {
        shown.append(static_cast<std::size_t>(value.exponent), '0');
    } else {
        const std::int64_t places = wholeDigits(value);
        if (places <= 0) {
            shown.insert(0, static_cast<std::size_t>(1 - places), '0');
        }
        shown.insert(places <= 0 ? 1 : static_cast<std::size_t>(places), 1, '.');
        shown.erase(shown.find_last_not_of('0') + 1);
        if (shown.back() == '.') {
            shown.pop_back();
        }
    }
    return value.isNegative ? '-' + shown : shown;
}

}  // namespace quillmark
