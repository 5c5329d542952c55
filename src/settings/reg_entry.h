#pragma once

#include "foundation/orx_string.h"

namespace quillmark {

/// One settings value with its address. It is kept as text and read as what the caller asks for:
/// "true" in any case or a non-zero number is true, a number is read as `atoi` reads it.
class RegEntry {
public:
    /// How the settings library marks a value; the text alone decides how it is read.
    enum class Type : int { text = 0, boolean = 1, number = 2 };

    RegEntry() = default;
    RegEntry(OrxString group, OrxString name, OrxString value, Type type = Type::text);

    [[nodiscard]] static RegEntry ofBool(bool value);
    [[nodiscard]] static RegEntry ofShort(short value);
    [[nodiscard]] static RegEntry ofInt(int value);
    [[nodiscard]] static RegEntry ofLong(long value);
    [[nodiscard]] static RegEntry ofString(OrxString value);

    [[nodiscard]] bool asBool() const;
    [[nodiscard]] short asShort() const;
    [[nodiscard]] int asInt() const;
    [[nodiscard]] long asLong() const;
    [[nodiscard]] const OrxString& asString() const noexcept { return value_; }

    [[nodiscard]] const OrxString& group() const noexcept { return group_; }
    [[nodiscard]] const OrxString& name() const noexcept { return name_; }
    [[nodiscard]] Type type() const noexcept { return type_; }

private:
    OrxString group_;
    OrxString name_;
    OrxString value_;
    Type type_ = Type::text;
};

}  // namespace quillmark
