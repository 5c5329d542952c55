#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "foundation/growth.h"

namespace quillmark {

/// A list of strings that share one block of memory. Each string costs eight bytes besides its own,
/// so that a document with hundreds of thousands of names stays small.
class PackedStrings {
public:
    /// Appends a string and returns its index, counted from 0.
    std::uint32_t add(std::string_view text) {
        makeRoomForOne(ends_);
        bytes_.append(text);
        ends_.push_back(bytes_.size());
        return static_cast<std::uint32_t>(ends_.size() - 1);
    }
    /// The view is valid until the next `add` or `clear`.
    [[nodiscard]] std::string_view operator[](std::uint32_t index) const noexcept {
        const std::size_t start = index == 0 ? 0 : ends_[index - 1];
        return std::string_view(bytes_).substr(start, ends_[index] - start);
    }
    [[nodiscard]] std::size_t size() const noexcept { return ends_.size(); }
    /// Releases memory reserved for growth.
    void compact() {
        bytes_.shrink_to_fit();
        ends_.shrink_to_fit();
    }
    void clear() noexcept {
        bytes_.clear();
        ends_.clear();
    }

private:
    std::string bytes_;
    std::vector<std::size_t> ends_;
};

}  // namespace quillmark
