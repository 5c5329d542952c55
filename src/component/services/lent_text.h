#pragma once

#include <string_view>
#include <vector>

#include "dochtml/callbacks.h"
#include "foundation/orx_string.h"

namespace quillmark {

/// A text for a callback; it is on loan from `text`.
[[nodiscard]] inline DochtmlText lend(std::string_view text) noexcept {
    return {text.data(), text.size()};
}

[[nodiscard]] inline std::string_view viewOf(const DochtmlText& text) noexcept {
    return text.data == nullptr ? std::string_view() : std::string_view(text.data, text.size);
}

/// Collects what a callback puts into a sink.
class CollectedTexts {
public:
    CollectedTexts() = default;
    CollectedTexts(const CollectedTexts&) = delete;
    CollectedTexts& operator=(const CollectedTexts&) = delete;
    ~CollectedTexts() = default;

    /// For the callback; valid as long as this object.
    [[nodiscard]] DochtmlSink sink() noexcept { return {this, &CollectedTexts::put}; }
    [[nodiscard]] std::vector<OrxString>& texts() noexcept { return texts_; }
    /// The one text of a callback that answers with one; empty when it put none.
    [[nodiscard]] OrxString text() const { return texts_.empty() ? OrxString() : texts_.front(); }

private:
    /// A text that finds no memory is dropped: nothing may be thrown through a callback.
    static void put(void* context, const DochtmlText* text) noexcept;

    std::vector<OrxString> texts_;
};

}  // namespace quillmark
