#include "component/posix/conversion/number_text.h"

#include <algorithm>
#include <limits>
#include <string>
#include <utility>

#include "foundation/ascii.h"

namespace quillmark {
namespace {

/// The blanks of Unicode.
bool isBlank(char16_t unit) noexcept {
    constexpr std::u16string_view others =
        u"\u0020\u0085\u00A0\u1680\u2028\u2029\u202F\u205F\u3000";
    return (unit >= u'\t' && unit <= u'\r') || (unit >= u'\u2000' && unit <= u'\u200A') ||
           others.find(unit) != std::u16string_view::npos;
}

/// Reads one text from start to end.
class NumberReader {
public:
    explicit NumberReader(std::u16string_view text) : rest_(text.substr(0, text.find(u'\0'))) {}

    std::optional<std::variant<DecimalValue, BitPattern>> read() {
        readFront();
        const int base = hasCurrency_ ? 0 : readBase();
        std::optional<std::variant<DecimalValue, BitPattern>> number;
        if (base != 0) {
            number = readBits(base);
        } else {
            number = readDecimal();
        }
        if (!number || !readEnd(base == 0)) {
            return std::nullopt;
        }
        if (auto* decimal = std::get_if<DecimalValue>(&*number)) {
            decimal->isNegative = isNegative_;
        }
        return number;
    }

private:
    [[nodiscard]] char16_t next() const noexcept { return rest_.empty() ? u'\0' : rest_.front(); }
    bool take(char16_t unit) noexcept {
        const bool found = next() == unit;
        rest_.remove_prefix(found ? 1 : 0);
        return found;
    }
    /// Takes a unit that may occur only once.
    bool takeOnce(char16_t unit, bool& taken) noexcept {
        if (taken || !take(unit)) {
            return false;
        }
        taken = true;
        return true;
    }
    /// Takes a unit that may be repeated, and records in `taken` that it occurred.
    bool takeNoting(char16_t unit, bool& taken) noexcept {
        const bool found = take(unit);
        taken = taken || found;
        return found;
    }
    bool takeBlanks() noexcept {
        std::size_t count = 0;
        while (count < rest_.size() && isBlank(rest_[count])) {
            ++count;
        }
        rest_.remove_prefix(count);
        return count != 0;
    }

    void readFront() noexcept {
        while (takeBlanks() || takeOnce(u'+', hasPlus_) || takeOnce(u'-', isNegative_) ||
               takeOnce(u'$', hasCurrency_) || takeOnce(u'(', hasParenthesis_)) {
        }
    }

    /// The base given by a prefix such as "&H"; 0 for a plain number.
    int readBase() noexcept {
        if (next() != u'&' || rest_.size() < 2) {
            return 0;
        }
        const char16_t letter = ascii::toLower(rest_[1]);
        const int base = letter == u'h' ? 16 : letter == u'o' ? 8 : 0;
        rest_.remove_prefix(base == 0 ? 0 : 2);
        return base;
    }

    /// The value of the next unit as a digit in that base, or -1.
    [[nodiscard]] int digit(int base) const noexcept {
        const char16_t unit = ascii::toLower(next());
        const int value = unit >= u'0' && unit <= u'9'   ? unit - u'0'
                          : unit >= u'a' && unit <= u'f' ? unit - u'a' + 10
                                                         : base;
        return value < base ? value : -1;
    }

    std::optional<BitPattern> readBits(int base) noexcept {
        constexpr std::uint64_t most = std::numeric_limits<std::uint64_t>::max();
        if (digit(base) < 0) {
            return std::nullopt;
        }
        std::uint64_t bits = 0;
        for (int value = digit(base); value >= 0; value = digit(base)) {
            const auto factor = static_cast<std::uint64_t>(base);
            bits = bits > most / factor ? most : bits * factor + static_cast<std::uint64_t>(value);
            rest_.remove_prefix(1);
        }
        return BitPattern{bits};
    }

    std::optional<DecimalValue> readDecimal() {
        std::string digits;
        std::int64_t exponent = 0;
        bool hasPoint = false;
        while (digit(10) >= 0 || ((hasPoint || !digits.empty()) && next() == u',') ||
               (!hasPoint && next() == u'.')) {
            if (digit(10) >= 0) {
                digits += static_cast<char>(next());
                exponent -= hasPoint ? 1 : 0;
            }
            hasPoint = hasPoint || next() == u'.';
            rest_.remove_prefix(1);
        }
        if (digits.empty() || !readExponent(exponent)) {
            return std::nullopt;
        }
        return decimalOf(false, std::move(digits), exponent);
    }

    /// Reads an optional exponent and adds it. Returns false when its digits are missing.
    bool readExponent(std::int64_t& exponent) noexcept {
        // Far larger than any number needs; keeps the sum from overflowing.
        constexpr std::int64_t most = 1'000'000'000;
        if (hasCurrency_ || (!take(u'e') && !take(u'E'))) {
            return true;
        }
        bool isNegative = false;
        while (take(u'+') || takeNoting(u'-', isNegative)) {
        }
        if (digit(10) < 0) {
            return false;
        }
        std::int64_t power = 0;
        for (int value = digit(10); value >= 0; value = digit(10)) {
            power = std::min(power * 10 + value, most);
            rest_.remove_prefix(1);
        }
        exponent += isNegative ? -power : power;
        return true;
    }

    /// Reads what may follow the number. Returns false when anything else follows. A sign may occur
    /// before or after the number, but not at both places. After the number it may be repeated.
    bool readEnd(bool isDecimal) noexcept {
        const bool hadPlus = hasPlus_;
        const bool hadMinus = isNegative_;
        while (takeBlanks() || (isDecimal && (take(u',') || take(u'$'))) ||
               (!hadPlus && take(u'+')) || (!hadMinus && takeNoting(u'-', isNegative_)) ||
               (hasParenthesis_ && takeNoting(u')', isNegative_))) {
        }
        // An unclosed parenthesis is accepted when there is a minus sign.
        return rest_.empty() && (isNegative_ || !hasParenthesis_);
    }

    std::u16string_view rest_;
    bool hasPlus_ = false;
    bool isNegative_ = false;
    bool hasCurrency_ = false;
    bool hasParenthesis_ = false;
};

}  // namespace

std::optional<std::variant<DecimalValue, BitPattern>> readNumber(std::u16string_view text) {
    return NumberReader(text).read();
}

}  // namespace quillmark
