#pragma once

#include <new>
#include <string_view>
#include <vector>

#include "dochtml/callbacks.h"
#include "foundation/orx_string.h"

namespace quillmark {

/// A text to pass to a callback. It refers to the bytes of `text`.
[[nodiscard]] inline DochtmlText callbackText(std::string_view text) noexcept {
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
    /// All texts. Throws `std::bad_alloc` if there was no memory for one of them.
    [[nodiscard]] std::vector<OrxString>& texts() {
        checkComplete();
        return texts_;
    }
    /// The first text, for callbacks that return one text. Empty when there is none. Throws like
    /// `texts`.
    [[nodiscard]] OrxString text() const {
        checkComplete();
        return texts_.empty() ? OrxString() : texts_.front();
    }

private:
    void checkComplete() const {
        if (!complete_) {
            throw std::bad_alloc();
        }
    }
    /// Only notes that a text is missing when out of memory, because no exception may pass through
    /// a callback.
    static void put(void* context, const DochtmlText* text) noexcept;

    std::vector<OrxString> texts_;
    bool complete_ = true;
};

}  // namespace quillmark
