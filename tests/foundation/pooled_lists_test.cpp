#include "foundation/pooled_lists.h"

#include <gtest/gtest.h>

#include <memory>
#include <random>

namespace quillmark {
namespace {

template <typename Value>
std::vector<Value> taken(PooledLists<Value>& pool, typename PooledLists<Value>::List& list) {
    std::vector<Value> values;
    pool.take(list, [&](const Value& value) { values.push_back(value); });
    return values;
}

using Numbers = PooledLists<int>;

TEST(PooledLists, AreEmptyAtFirst) {
    Numbers pool;
    Numbers::List list;
    EXPECT_TRUE(list.isEmpty());
    EXPECT_EQ(taken(pool, list), std::vector<int>());
}

TEST(PooledLists, KeepTheirValuesInOrderAndApart) {
    Numbers pool;
    Numbers::List odd;
    Numbers::List even;
    for (int number = 1; number <= 6; ++number) {
        pool.append(number % 2 == 1 ? odd : even, number);
    }
    EXPECT_EQ(pool.first(odd), 1);
    EXPECT_EQ(pool.last(odd), 5);
    std::vector<int> seen;
    pool.forEach(even, [&](int number) { seen.push_back(number); });
    EXPECT_EQ(seen, (std::vector<int>{2, 4, 6}));
    EXPECT_EQ(taken(pool, odd), (std::vector<int>{1, 3, 5}));
    EXPECT_TRUE(odd.isEmpty());
    EXPECT_EQ(taken(pool, even), (std::vector<int>{2, 4, 6}));
}

TEST(PooledLists, CanBeRefilledWhileTheyAreTaken) {
    Numbers pool;
    Numbers::List list;
    pool.append(list, 1);
    pool.append(list, 2);
    Numbers::List others;
    pool.take(list, [&](int number) {
        pool.append(list, number * 10);
        pool.append(others, number * 100);
    });
    EXPECT_EQ(taken(pool, list), (std::vector<int>{10, 20}));
    EXPECT_EQ(taken(pool, others), (std::vector<int>{100, 200}));
}

TEST(PooledLists, ReleaseWhatWasTaken) {
    PooledLists<std::shared_ptr<int>> pool;
    PooledLists<std::shared_ptr<int>>::List list;
    const auto value = std::make_shared<int>(7);
    pool.append(list, value);
    EXPECT_EQ(value.use_count(), 2);
    taken(pool, list);
    EXPECT_EQ(value.use_count(), 1);
}

TEST(PooledLists, AreLikeAVectorEach) {
    std::mt19937 random(20261121);
    Numbers pool;
    std::vector<Numbers::List> lists(50);
    std::vector<std::vector<int>> vectors(lists.size());
    for (int step = 0; step < 20'000; ++step) {
        const std::size_t which = random() % lists.size();
        if (random() % 10 == 0) {
            ASSERT_EQ(taken(pool, lists[which]), vectors[which]);
            vectors[which].clear();
        } else {
            pool.append(lists[which], step);
            vectors[which].push_back(step);
        }
        ASSERT_EQ(lists[which].isEmpty(), vectors[which].empty());
    }
}

}  // namespace
}  // namespace quillmark
