#pragma once

#include <array>
#include <cstddef>
#include <cstring>

#include "dochtml/text.h"
#include "driver/boundary/operation_table.h"

namespace quillmark::replay {

/// Texts that are passed to a component, one at a time. Their memory is kept and used again, as a
/// system does that caches such texts: allocating them would take longer than most calls.
class ReusedTexts {
public:
    /// A text of that many units or more is not kept.
    static constexpr std::size_t longest = 1024;

    /// A text with these units, of fewer than `longest`. It belongs to this object and is valid
    /// until the next call with as many units.
    [[nodiscard]] BSTR textOf(WideText units) {
        Text& text = byLength_.at(units.size());
        if (text.get() == nullptr) {
            text = Text(units);
        } else if (!units.empty()) {
            std::memcpy(text.get(), units.data(), units.size() * sizeof(OLECHAR));
        }
        return text.get();
    }

private:
    /// A text cannot change its length, so there is one of each.
    std::array<Text, longest> byLength_;
};

}  // namespace quillmark::replay
