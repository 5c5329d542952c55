#pragma once

#include <memory>
#include <utility>

namespace quillmark {

/// A shared, counted pointer: the object lives until its last holder lets go.
///
/// Copies compare equal, and are ordered by address only so that they may be kept in containers;
/// nothing may reach the output in that order.
template <typename T>
class OrxCountedPtr {
public:
    OrxCountedPtr() noexcept = default;

    /// Makes a new object; there is no other way in, so nothing is ever owned twice.
    template <typename... Args>
    [[nodiscard]] static OrxCountedPtr make(Args&&... args) {
        OrxCountedPtr pointer;
        pointer.object_ = std::make_shared<T>(std::forward<Args>(args)...);
        return pointer;
    }

    [[nodiscard]] T* get() const noexcept { return object_.get(); }
    [[nodiscard]] T& operator*() const noexcept { return *object_; }
    [[nodiscard]] T* operator->() const noexcept { return object_.get(); }
    [[nodiscard]] bool isNull() const noexcept { return object_ == nullptr; }
    explicit operator bool() const noexcept { return object_ != nullptr; }
    /// The number of holders, 0 for a null pointer.
    [[nodiscard]] long useCount() const noexcept { return object_.use_count(); }
    void reset() noexcept { object_.reset(); }

    friend bool operator==(const OrxCountedPtr&, const OrxCountedPtr&) noexcept = default;
    friend auto operator<=>(const OrxCountedPtr&, const OrxCountedPtr&) noexcept = default;

private:
    std::shared_ptr<T> object_;
};

}  // namespace quillmark
