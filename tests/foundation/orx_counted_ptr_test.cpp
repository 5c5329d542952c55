#include "foundation/orx_counted_ptr.h"

#include <gtest/gtest.h>

#include <utility>

#include "foundation/orx_object.h"

namespace quillmark {
namespace {

struct Counted : OrxObject {
    explicit Counted(int& alive, int value = 0) : alive_(alive), number(value) { ++alive_; }
    ~Counted() override { --alive_; }
    Counted(const Counted&) = delete;
    Counted& operator=(const Counted&) = delete;

private:
    int& alive_;

public:
    int number;
};

TEST(CountedPointer, IsNullAtFirst) {
    const OrxCountedPtr<Counted> pointer;
    EXPECT_FALSE(pointer);
    EXPECT_EQ(pointer.get(), nullptr);
}

TEST(CountedPointer, KeepsItsObjectForTheLastHolder) {
    int alive = 0;
    {
        auto first = OrxCountedPtr<Counted>::make(alive, 7);
        {
            const OrxCountedPtr<Counted> second = first;
            EXPECT_EQ(second->number, 7);
            first.reset();
            EXPECT_FALSE(first);
            EXPECT_EQ(alive, 1);
            EXPECT_EQ((*second).number, 7);
        }
        EXPECT_EQ(alive, 0);
    }
}

TEST(CountedPointer, HandsItsObjectOnWhenMoved) {
    int alive = 0;
    auto first = OrxCountedPtr<Counted>::make(alive);
    {
        const OrxCountedPtr<Counted> second = std::move(first);
        EXPECT_TRUE(second);
        EXPECT_EQ(alive, 1);
    }
    EXPECT_EQ(alive, 0);
}

TEST(CountedPointer, IsEqualToItsCopiesAlone) {
    int alive = 0;
    const auto one = OrxCountedPtr<Counted>::make(alive);
    const auto other = OrxCountedPtr<Counted>::make(alive);
    const OrxCountedPtr<Counted> copy = one;
    EXPECT_EQ(one, copy);
    EXPECT_NE(one, other);
}

TEST(CountedPointer, AssignedToItselfKeepsItsObject) {
    int alive = 0;
    auto pointer = OrxCountedPtr<Counted>::make(alive);
    auto& same = pointer;
    pointer = same;
    EXPECT_EQ(alive, 1);
    pointer.reset();
    EXPECT_EQ(alive, 0);
}

}  // namespace
}  // namespace quillmark
