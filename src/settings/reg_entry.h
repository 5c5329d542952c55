#pragma once

#include "foundation/orx_string.h"
#include "platform/text_encoding.h"

namespace quillmark {

/// A settings value with its group and name, all in UTF-8. The value is kept as text and converted
/// on reading.
///
///     RegEntry("Html", "Navig", "3").asInt();   // 3
class RegEntry {
public:
    /// The type that the settings library records for a value. It does not affect how the text is
    /// read.
    enum class Type : int { text = 0, boolean = 1, number = 2 };

    RegEntry() = default;
    RegEntry(OrxString group, OrxString name, OrxString value, Type type = Type::text);

    /// Entries without a group and a name, for use as fallbacks.
    [[nodiscard]] static RegEntry ofBool(bool value);
    [[nodiscard]] static RegEntry ofShort(short value);
    [[nodiscard]] static RegEntry ofInt(int value);
    [[nodiscard]] static RegEntry ofLong(long value);
    [[nodiscard]] static RegEntry ofString(OrxString value);

    /// True for "true" in any case and for any number except 0.
    [[nodiscard]] bool asBool() const;
    /// The number at the start of the text, see `leadingInteger`. `asShort` keeps its low 16 bits.
    [[nodiscard]] short asShort() const;
    [[nodiscard]] int asInt() const;
    [[nodiscard]] long asLong() const;
    [[nodiscard]] const OrxString& asString() const noexcept { return value_; }
    /// The text in the encoding of a document.
    [[nodiscard]] OrxString asString(const TextEncoding& encoding) const {
        return encoding.fromUtf8(value_);
    }

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
