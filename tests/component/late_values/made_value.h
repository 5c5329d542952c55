#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <string>

#include "dochtml/automation.h"
#include "dochtml/text.h"

namespace quillmark::testing {

/// A value of a host, created from the first two cells of a row of the table.
///
/// The type is the name of a kind of variant without its "VT_", or its number such as `0x1002`;
/// `&` after it makes a reference, `[]` an array. The value is written by its type:
///
/// - whole numbers, currency (in ten-thousandths) and errors: an integer, also `0x80020004`,
/// - real numbers and dates: `-2.5`, `nan`, `-nan`, `inf`, `-inf`,
/// - `DECIMAL`: its high 32 bits, low 64 bits, scale and sign, as in `0 12345 2 0x80`,
/// - `BSTR`: a quoted text in which `\u00A0` is a unit, or `null`,
/// - `DISPATCH`: `null`, `bare` (an object without a value), or the type and value of its default
///   property, as in `I4 5`,
/// - `VARIANT&`: the type and value of the variant that it refers to,
/// - `-` for a kind without a value, and `nowhere` for a reference that is null.
class MadeValue {
public:
    /// Throws `std::runtime_error` for a malformed row.
    MadeValue(std::string type, const std::string& value);
    ~MadeValue();
    MadeValue(const MadeValue&) = delete;
    MadeValue& operator=(const MadeValue&) = delete;

    [[nodiscard]] VARIANT& variant() noexcept { return variant_; }

private:
    void fill(VARTYPE base, const std::string& value);
    void fillDecimal(const std::string& value);
    template <typename Value>
    void keep(Value value) noexcept;
    void point(VARTYPE base) noexcept;

    VARIANT variant_;
    /// The bytes of the value, to which a reference points.
    alignas(std::max_align_t) std::array<std::byte, sizeof(VARIANT)> memory_{};
    Text text_;
    std::unique_ptr<MadeValue> inner_;
    std::unique_ptr<IDispatch, void (*)(IDispatch*)> object_;
};

}  // namespace quillmark::testing
