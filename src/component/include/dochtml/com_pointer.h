#ifndef DOCHTML_COM_POINTER_H
#define DOCHTML_COM_POINTER_H

#include <utility>

#include "dochtml/automation.h"

namespace quillmark {

/// Owns one reference to an interface and releases it in its destructor.
///
///     ComPointer<IDocument> document;
///     factory->CreateInstance(nullptr, IID_IDocument, document.receive());
template <typename Interface>
class ComPointer {
public:
    ComPointer() noexcept = default;
    ComPointer(const ComPointer& other) noexcept : pointer_(other.pointer_) {
        if (pointer_ != nullptr) {
            pointer_->AddRef();
        }
    }
    ComPointer(ComPointer&& other) noexcept : pointer_(std::exchange(other.pointer_, nullptr)) {}
    ComPointer& operator=(ComPointer other) noexcept {
        std::swap(pointer_, other.pointer_);
        return *this;
    }
    ~ComPointer() { reset(); }

    /// Takes over a reference that is already counted.
    [[nodiscard]] static ComPointer adopt(Interface* pointer) noexcept {
        ComPointer owner;
        owner.pointer_ = pointer;
        return owner;
    }

    [[nodiscard]] Interface* get() const noexcept { return pointer_; }
    [[nodiscard]] Interface* operator->() const noexcept { return pointer_; }
    explicit operator bool() const noexcept { return pointer_ != nullptr; }
    void reset() noexcept {
        if (Interface* old = std::exchange(pointer_, nullptr)) {
            old->Release();
        }
    }

    /// The address to pass to a function that returns a counted interface. Releases the current
    /// reference first.
    [[nodiscard]] void** receive() noexcept {
        reset();
        return reinterpret_cast<void**>(&pointer_);
    }
    /// Another interface of the same object; null when the object does not support it.
    template <typename Other>
    [[nodiscard]] ComPointer<Other> query(REFIID iid) const noexcept {
        ComPointer<Other> other;
        if (pointer_ == nullptr || FAILED(pointer_->QueryInterface(iid, other.receive()))) {
            return {};
        }
        return other;
    }

private:
    Interface* pointer_ = nullptr;
};

}  // namespace quillmark

#endif
