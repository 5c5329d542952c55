#pragma once

#include <atomic>
#include <mutex>
#include <type_traits>
#include <utility>

namespace quillmark {

/// A value that the whole process shares, for example the service that a host has installed. Any
/// thread may read or replace it at any time.
///
/// A pointer or a number is kept in an atomic:
///
///     constinit ProcessWide<const MMSchema*> installedSchema;
///
///     const MMSchema* MMSchema::getSchema() noexcept { return installedSchema.get(); }
///
/// The object that a pointer leads to is not owned. Whoever replaces the pointer must keep the old
/// object alive until no thread uses it any more.
template <typename Value>
class ProcessWide {
public:
    constexpr ProcessWide() noexcept = default;

    [[nodiscard]] Value get() const noexcept { return value_.load(std::memory_order_acquire); }
    /// Replaces the value and returns the one before.
    Value exchange(Value next) noexcept { return value_.exchange(next, std::memory_order_acq_rel); }

private:
    std::atomic<Value> value_{};
};

/// Any other value is guarded by a lock, and readers get a copy. An object of this kind has a
/// destructor, so keep it in a `ModuleLifetime`.
template <typename Value>
requires(!std::is_trivially_copyable_v<Value>) class ProcessWide<Value> {
public:
    [[nodiscard]] Value get() const {
        const std::lock_guard lock(mutex_);
        return value_;
    }
    /// Replaces the value and returns the one before, which is thus destroyed outside the lock.
    Value exchange(Value next) {
        const std::lock_guard lock(mutex_);
        std::swap(value_, next);
        return next;
    }
    /// Returns the value. If it is null, first sets it to the result of `make`, once for all
    /// threads.
    template <typename Make>
    [[nodiscard]] Value getOrMake(const Make& make) {
        const std::lock_guard lock(mutex_);
        if (value_ == nullptr) {
            value_ = make();
        }
        return value_;
    }

private:
    mutable std::mutex mutex_;
    Value value_{};
};

}  // namespace quillmark
