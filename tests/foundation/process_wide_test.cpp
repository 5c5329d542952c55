#include "foundation/process_wide.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <memory>
#include <set>
#include <string>
#include <thread>
#include <vector>

namespace quillmark {
namespace {

TEST(ProcessWide, StartsEmpty) {
    EXPECT_EQ(ProcessWide<int*>().get(), nullptr);
    EXPECT_EQ(ProcessWide<int>().get(), 0);
    EXPECT_EQ(ProcessWide<std::string>().get(), "");
}

TEST(ProcessWide, HandsBackWhatItReplaces) {
    int first = 0;
    ProcessWide<int*> pointer;
    EXPECT_EQ(pointer.exchange(&first), nullptr);
    EXPECT_EQ(pointer.get(), &first);
    EXPECT_EQ(pointer.exchange(nullptr), &first);

    ProcessWide<std::string> text;
    EXPECT_EQ(text.exchange("a"), "");
    EXPECT_EQ(text.get(), "a");
    EXPECT_EQ(text.exchange("b"), "a");
}

TEST(ProcessWide, CreatesAMissingValueOnce) {
    ProcessWide<std::shared_ptr<int>> value;
    int made = 0;
    const auto make = [&made] { return std::make_shared<int>(++made); };
    EXPECT_EQ(*value.getOrMake(make), 1);
    EXPECT_EQ(*value.getOrMake(make), 1);
    value.exchange(nullptr);
    EXPECT_EQ(*value.getOrMake(make), 2);
}

TEST(ProcessWide, MayBeReadWhileTheOldValueIsDestroyed) {
    struct Reader {
        explicit Reader(ProcessWide<std::shared_ptr<Reader>>& all) : all_(all) {}
        Reader(const Reader&) = delete;
        Reader& operator=(const Reader&) = delete;
        ~Reader() { EXPECT_EQ(all_.get(), nullptr); }
        ProcessWide<std::shared_ptr<Reader>>& all_;
    };
    ProcessWide<std::shared_ptr<Reader>> value;
    value.exchange(std::make_shared<Reader>(value));
    value.exchange(nullptr);
}

TEST(ProcessWide, LosesNoValueAmongThreads) {
    constexpr int threadCount = 4;
    constexpr int exchanges = 1000;
    ProcessWide<int> number;
    ProcessWide<std::shared_ptr<int>> object;
    std::vector<std::vector<int>> numbersSeen(threadCount);
    std::vector<std::vector<int>> objectsSeen(threadCount);
    std::vector<std::thread> threads;
    for (std::size_t thread = 0; thread < threadCount; ++thread) {
        threads.emplace_back([&, thread] {
            for (int i = 0; i < exchanges; ++i) {
                const int mine = static_cast<int>(thread) * exchanges + i + 1;
                numbersSeen[thread].push_back(number.exchange(mine));
                const auto before = object.exchange(std::make_shared<int>(mine));
                objectsSeen[thread].push_back(before == nullptr ? 0 : *before);
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    std::multiset<int> numbers = {number.get()};
    std::multiset<int> objects = {*object.get()};
    for (std::size_t thread = 0; thread < threadCount; ++thread) {
        numbers.insert(numbersSeen[thread].begin(), numbersSeen[thread].end());
        objects.insert(objectsSeen[thread].begin(), objectsSeen[thread].end());
    }
    std::multiset<int> all;
    for (int value = 0; value <= threadCount * exchanges; ++value) {
        all.insert(value);
    }
    EXPECT_EQ(numbers, all);
    EXPECT_EQ(objects, all);
}

}  // namespace
}  // namespace quillmark
