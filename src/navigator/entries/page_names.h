#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "foundation/orx_string.h"

namespace quillmark {

/// The numbers in the addresses of a document's pages.
struct PageNames {
    /// The file name of the pages up to their number ("rep_dtl").
    OrxString name;
    /// With its dot.
    OrxString extension;

    /// The number of the page that a link leads to; nothing for another file.
    [[nodiscard]] std::optional<std::uint32_t> pageNumber(std::string_view href) const;
};

/// The number of the anchor "toc12" that a link ends in.
[[nodiscard]] std::optional<std::uint32_t> anchorNumber(std::string_view href) noexcept;

}  // namespace quillmark
