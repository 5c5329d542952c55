#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace quillmark {

/// Reads pages at the moment when they are written.
class PageReader {
public:
    virtual ~PageReader() = default;
    /// The page with that number is on the disk. The pieces are the bytes of its file behind the
    /// head, in order; the views are valid during the call.
    virtual void read(std::uint32_t page, std::span<const std::string_view> pieces) = 0;
};

}  // namespace quillmark
