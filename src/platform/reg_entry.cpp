#include "platform/reg_entry.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <string>
#include <utility>

namespace quillmark {

namespace {

/// Reads a number as `atoi` does: blanks, a sign, digits, whatever follows is left. What 32 bits
/// cannot hold is the nearest that they can, on every system.
std::int32_t numberIn(std::string_view text) noexcept {
    text.remove_prefix(std::min(text.find_first_not_of(" \t\n\v\f\r"), text.size()));
    const bool negative = text.starts_with('-');
    if (negative || text.starts_with('+')) {
        text.remove_prefix(1);
    }
    constexpr std::int64_t highest = std::numeric_limits<std::int32_t>::max();
    std::int64_t value = 0;
    for (const char c : text) {
        if (c < '0' || c > '9') {
            break;
        }
        value = std::min(value * 10 + (c - '0'), highest + 1);
    }
    return static_cast<std::int32_t>(negative ? -value : std::min(value, highest));
}

}  // namespace

RegEntry::RegEntry(OrxString group, OrxString name, OrxString value, Type type)
    : group_(std::move(group)), name_(std::move(name)), value_(std::move(value)), type_(type) {}

RegEntry RegEntry::ofBool(bool value) {
    return {{}, {}, value ? "true" : "false", Type::boolean};
}

RegEntry RegEntry::ofShort(short value) {
    return ofLong(value);
}

RegEntry RegEntry::ofInt(int value) {
    return ofLong(value);
}

RegEntry RegEntry::ofLong(long value) {
    return {{}, {}, OrxString(std::to_string(value)), Type::number};
}

RegEntry RegEntry::ofString(OrxString value) {
    return {{}, {}, std::move(value), Type::text};
}

bool RegEntry::asBool() const {
    OrxString text = value_;
    return text.toLower() == "true" || numberIn(value_) != 0;
}

short RegEntry::asShort() const {
    return static_cast<short>(numberIn(value_));
}

int RegEntry::asInt() const {
    return numberIn(value_);
}

long RegEntry::asLong() const {
    return numberIn(value_);
}

}  // namespace quillmark
