#ifndef DOCHTML_TEXT_H
#define DOCHTML_TEXT_H

#include <new>
#include <string_view>
#include <utility>

#include "dochtml/automation.h"

namespace quillmark {

/// Owns a `BSTR`.
///
///     document->insertText(Text(u"Hello").get());
///
///     Text type;
///     document->getDocType(type.receive());      // type.view() == u"Html"
class Text {
public:
    Text() noexcept = default;
    /// Throws `std::bad_alloc` when out of memory.
    explicit Text(std::u16string_view units)
        : text_(SysAllocStringLen(reinterpret_cast<const OLECHAR*>(units.data()),
                                  static_cast<UINT>(units.size()))) {
        if (text_ == nullptr) {
            throw std::bad_alloc();
        }
    }
    Text(Text&& other) noexcept : text_(other.release()) {}
    Text& operator=(Text&& other) noexcept {
        std::swap(text_, other.text_);
        return *this;
    }
    Text(const Text&) = delete;
    Text& operator=(const Text&) = delete;
    ~Text() { SysFreeString(text_); }

    [[nodiscard]] BSTR get() const noexcept { return text_; }
    [[nodiscard]] BSTR release() noexcept { return std::exchange(text_, nullptr); }
    /// The address to pass to a function that returns a text. Frees the current text first.
    [[nodiscard]] BSTR* receive() noexcept {
        SysFreeString(std::exchange(text_, nullptr));
        return &text_;
    }
    [[nodiscard]] std::u16string_view view() const noexcept { return viewOf(text_); }

    /// The units of any `BSTR`; empty for a null text.
    [[nodiscard]] static std::u16string_view viewOf(BSTR text) noexcept {
        if (text == nullptr) {
            return {};
        }
        return {reinterpret_cast<const char16_t*>(text), SysStringLen(text)};
    }

private:
    BSTR text_ = nullptr;
};

}  // namespace quillmark

#endif
