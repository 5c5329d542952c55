#pragma once

#include <cstddef>

namespace quillmark::testing {

/// Makes allocations of this thread fail, for its lifetime. The program that links this file has
/// the operators `new` of the file, so it also counts the allocations of the libraries.
///
///     const AllocationFailure failure(3, AllocationFailure::Mode::once);
///     document.insertText(u"a");       // the third allocation throws std::bad_alloc
class AllocationFailure {
public:
    enum class Mode { once, forGood };
    /// A position that is never reached: the allocations are only counted.
    static constexpr std::size_t never = static_cast<std::size_t>(-1);

    /// The `position`th allocation from now on fails, counted from 1. With `forGood`, so do all
    /// after it.
    explicit AllocationFailure(std::size_t position, Mode mode = Mode::once) noexcept;
    AllocationFailure(const AllocationFailure&) = delete;
    AllocationFailure& operator=(const AllocationFailure&) = delete;
    ~AllocationFailure();

    /// The number of allocations so far, with those that failed.
    [[nodiscard]] static std::size_t count() noexcept;
    [[nodiscard]] static bool hasHappened() noexcept;
};

/// The allocations during its lifetime are the test's own: they are not counted and do not fail.
class UncountedAllocations {
public:
    UncountedAllocations() noexcept;
    UncountedAllocations(const UncountedAllocations&) = delete;
    UncountedAllocations& operator=(const UncountedAllocations&) = delete;
    ~UncountedAllocations();
};

/// Runs `attempt` with the first allocation failing, then the second, and so on, until a run needs
/// fewer. `attempt` makes its objects, runs the code under test and checks what is left.
template <typename Attempt>
std::size_t forEachAllocation(const Attempt& attempt) {
    std::size_t position = 0;
    for (bool happened = true; happened;) {
        happened = attempt(++position);
    }
    return position - 1;
}

}  // namespace quillmark::testing
