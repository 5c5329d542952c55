#pragma once

#include <string_view>
#include <vector>

#include "dochtml/callbacks.h"
#include "foundation/orx_string.h"

namespace quillmark {

/// A text to pass to a callback. It refers to the bytes of `text`.
[[nodiscard]] inline DochtmlText lend(std::string_view text) noexcept {
    return {text.data(), text.size()};
}

[[nodiscard]] inline std::string_view viewOf(const DochtmlText& text) noexcept {
    return text.data == nullptr ? std::string_view() : std::string_view(text.data, text.size);
}

/// Collects the texts that a callback puts into its sink.
class CollectedTexts {
public:
    CollectedTexts() = default;
    CollectedTexts(const CollectedTexts&) = delete;
    CollectedTexts& operator=(const CollectedTexts&) = delete;
    ~CollectedTexts() = default;

    /// The sink to pass to the callback. Valid as long as this object.
    [[nodiscard]] DochtmlSink sink() noexcept { return {this, &CollectedTexts::put}; }
    [[nodiscard]] std::vector<OrxString>& texts() noexcept { return texts_; }
    /// The first text, for callbacks that return one text. Empty when there is none.
    [[nodiscard]] OrxString text() const { return texts_.empty() ? OrxString() : texts_.front(); }

private:
    /// Drops the text when out of memory, because no exception may pass through a callback.
    static void put(void* context, const DochtmlText* text) noexcept;

    std::vector<OrxString> texts_;
};

}  // namespace quillmark
