#pragma once

#include <cstddef>
#include <string>

#include "driver/boundary/i_document.h"

/// A report of pages of about 7 KB whose words are as frequent as those of a language.
namespace quillmark::bench::varied_report {

/// Makes the texts. It takes a while the first time, so this does not belong to a measured time.
void prepare();
/// Makes the calls between `create` and `close`.
void play(IDocument& document, std::size_t pages);
/// The same as a call stream, with these two calls.
[[nodiscard]] std::string stream(std::size_t pages);

}  // namespace quillmark::bench::varied_report
