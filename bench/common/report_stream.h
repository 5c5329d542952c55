#pragma once

#include <cstddef>
#include <string>

namespace quillmark::bench {

/// A call stream of a report. Each page has a heading, six paragraphs, a table, and eight
/// references to pages before it.
[[nodiscard]] std::string reportStream(std::size_t pages);

}  // namespace quillmark::bench
