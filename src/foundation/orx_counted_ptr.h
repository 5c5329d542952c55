#pragma once

#include <memory>
#include <utility>

namespace quillmark {

/// A shared, counted pointer: the object is destroyed with the last pointer to it. Two pointers are
/// equal if they lead to the same object.
template <typename T>
class OrxCountedPtr {
public:
    OrxCountedPtr() noexcept = default;

    /// Creates an object. A raw pointer cannot be adopted, so no object has two owners.
    template <typename... Args>
    [[nodiscard]] static OrxCountedPtr make(Args&&... args) {
        OrxCountedPtr pointer;
        pointer.object_ = std::make_shared<T>(std::forward<Args>(args)...);
        return pointer;
    }

    [[nodiscard]] T* get() const noexcept { return object_.get(); }
    [[nodiscard]] T& operator*() const noexcept { return *object_; }
    [[nodiscard]] T* operator->() const noexcept { return object_.get(); }
    explicit operator bool() const noexcept { return object_ != nullptr; }
    void reset() noexcept { object_.reset(); }

    friend bool operator==(const OrxCountedPtr&, const OrxCountedPtr&) noexcept = default;

private:
    std::shared_ptr<T> object_;
};

}  // namespace quillmark
