#include "common/open_document.h"

#include <array>

#include "driver/boundary/operation_table.h"

namespace quillmark::bench {

namespace {

constexpr int insertTextId = 3;

}  // namespace

Seconds secondsOfTable(IDocument& document, const std::u16string& text, std::size_t count) {
    const std::array<Argument, 1> arguments = {WideText(text)};
    return secondsOf([&] {
        for (std::size_t i = 0; i < count; ++i) {
            benchmark::DoNotOptimize(invoke(document, insertTextId, arguments));
        }
    });
}

}  // namespace quillmark::bench
