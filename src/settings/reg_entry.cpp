#include "settings/reg_entry.h"

#include <string>
#include <utility>

#include "foundation/decimal.h"

namespace quillmark {

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
    return text.toLower() == "true" || leadingInteger(value_) != 0;
}

short RegEntry::asShort() const {
    return static_cast<short>(leadingInteger(value_));
}

int RegEntry::asInt() const {
    return leadingInteger(value_);
}

long RegEntry::asLong() const {
    return leadingInteger(value_);
}

}  // namespace quillmark
