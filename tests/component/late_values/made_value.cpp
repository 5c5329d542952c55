#include "component/late_values/made_value.h"

#include <cmath>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <map>
#include <sstream>
#include <stdexcept>

#include "component/late_values/object_with_value.h"

namespace quillmark::testing {
namespace {

VARTYPE typeNamed(const std::string& name) {
    static const std::map<std::string, int> types = {
        {"EMPTY", VT_EMPTY},     {"NULL", VT_NULL},       {"I1", VT_I1},
        {"I2", VT_I2},           {"I4", VT_I4},           {"I8", VT_I8},
        {"INT", VT_INT},         {"UI1", VT_UI1},         {"UI2", VT_UI2},
        {"UI4", VT_UI4},         {"UI8", VT_UI8},         {"UINT", VT_UINT},
        {"R4", VT_R4},           {"R8", VT_R8},           {"CY", VT_CY},
        {"DATE", VT_DATE},       {"BSTR", VT_BSTR},       {"DISPATCH", VT_DISPATCH},
        {"ERROR", VT_ERROR},     {"BOOL", VT_BOOL},       {"VARIANT", VT_VARIANT},
        {"UNKNOWN", VT_UNKNOWN}, {"DECIMAL", VT_DECIMAL}, {"RECORD", VT_RECORD}};
    if (name.starts_with("0x")) {
        return static_cast<VARTYPE>(std::stoul(name, nullptr, 16));
    }
    const auto type = types.find(name);
    if (type == types.end()) {
        throw std::runtime_error("no type " + name);
    }
    return static_cast<VARTYPE>(type->second);
}

/// Removes `suffix` from the end of `name`, if it is there.
bool takeSuffix(std::string& name, const std::string& suffix) {
    const bool found = name.ends_with(suffix);
    name.erase(found ? name.size() - suffix.size() : name.size());
    return found;
}

double realIn(const std::string& value) {
    if (value.ends_with("nan")) {
        const double none = std::numeric_limits<double>::quiet_NaN();
        return std::copysign(none, value.front() == '-' ? -1.0 : 1.0);
    }
    return std::strtod(value.c_str(), nullptr);
}

std::uint64_t wholeIn(const std::string& value) {
    return value.starts_with('-') ? static_cast<std::uint64_t>(std::stoll(value))
                                  : std::stoull(value, nullptr, 0);
}

/// A quoted text with its escapes.
Text textIn(const std::string& value) {
    constexpr std::size_t digits = 4;
    std::u16string units;
    for (std::size_t i = 1; i + 1 < value.size(); ++i) {
        if (value.compare(i, 2, "\\u") == 0) {
            units += static_cast<char16_t>(std::stoul(value.substr(i + 2, digits), nullptr, 16));
            i += digits + 1;
        } else {
            units += static_cast<char16_t>(value[i]);
        }
    }
    return Text(units);
}

/// A value that is written with its type, as in "I4 5".
std::unique_ptr<MadeValue> valueWithType(const std::string& value) {
    const std::size_t blank = value.find(' ');
    return std::make_unique<MadeValue>(value.substr(0, blank), value.substr(blank + 1));
}

void deleteObject(IDispatch* object) {
    delete static_cast<ObjectWithValue*>(object);
}

}  // namespace

MadeValue::MadeValue(std::string type, const std::string& value) : object_(nullptr, &deleteObject) {
    VariantInit(&variant_);
    const bool isReference = takeSuffix(type, "&");
    const bool isArray = takeSuffix(type, "[]");
    const VARTYPE base = typeNamed(type);
    variant_.vt =
        static_cast<VARTYPE>(base | (isReference ? VT_BYREF : 0) | (isArray ? VT_ARRAY : 0));
    if (value == "-" || value == "nowhere") {
        return;
    }
    fill(base, value);
    if (isReference) {
        variant_.byref = inner_ && base == VT_VARIANT ? static_cast<void*>(&inner_->variant_)
                                                      : static_cast<void*>(memory_.data());
    } else {
        point(base);
    }
}

MadeValue::~MadeValue() = default;

template <typename Value>
void MadeValue::keep(Value value) noexcept {
    std::memcpy(memory_.data(), &value, sizeof value);
}

/// Copies the bytes of the value into the variant itself.
void MadeValue::point(VARTYPE base) noexcept {
    if (base == VT_DECIMAL) {
        std::memcpy(&variant_, memory_.data(), sizeof(DECIMAL));
        variant_.vt = VT_DECIMAL;
    } else {
        std::memcpy(&variant_.llVal, memory_.data(), sizeof variant_.llVal);
    }
}

void MadeValue::fill(VARTYPE base, const std::string& value) {
    switch (base) {
        case VT_R4:
            keep(static_cast<float>(realIn(value)));
            break;
        case VT_R8:
        case VT_DATE:
            keep(realIn(value));
            break;
        case VT_DECIMAL:
            fillDecimal(value);
            break;
        case VT_BSTR:
            text_ = value == "null" ? Text() : textIn(value);
            keep(text_.get());
            break;
        case VT_VARIANT:
            inner_ = valueWithType(value);
            break;
        case VT_DISPATCH:
            if (value != "null") {
                inner_ = value == "bare" ? nullptr : valueWithType(value);
                object_.reset(new ObjectWithValue(inner_ ? &inner_->variant_ : nullptr));
            }
            keep(object_.get());
            break;
        default:
            keep(value == "null" ? 0 : wholeIn(value));
            break;
    }
}

void MadeValue::fillDecimal(const std::string& value) {
    std::istringstream parts(value);
    std::string high;
    std::string low;
    std::string scale;
    std::string sign;
    parts >> high >> low >> scale >> sign;
    DECIMAL decimal{};
    decimal.Hi32 = static_cast<ULONG>(wholeIn(high));
    decimal.Lo64 = wholeIn(low);
    decimal.scale = static_cast<std::uint8_t>(wholeIn(scale));
    decimal.sign = static_cast<std::uint8_t>(wholeIn(sign));
    keep(decimal);
}

}  // namespace quillmark::testing
