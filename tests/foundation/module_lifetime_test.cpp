#include "foundation/module_lifetime.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <string>
#include <type_traits>

namespace quillmark::testing {
namespace {

struct Counted {
    std::string name = "counted, in memory of its own";
    int uses = 0;
};

Counted& counted() {
    static ModuleLifetime<Counted> instance;
    return *instance;
}

TEST(ModuleLifetime, IsMadeOnceWithItsContent) {
    EXPECT_EQ(counted().name, "counted, in memory of its own");
    EXPECT_EQ(counted().uses, 0);
    ++counted().uses;
    EXPECT_EQ(counted().uses, 1);
    counted().uses = 0;
}

TEST(ModuleLifetime, LeavesNothingForTheExitOfTheProcessToDestroy) {
    static_assert(std::is_trivially_destructible_v<ModuleLifetime<Counted>>);
}

#if GTEST_HAS_DEATH_TEST
struct Told {
    Told() = default;
    Told(const Told&) = delete;
    Told& operator=(const Told&) = delete;
    ~Told() { std::fputs(("gone: " + text + "\n").c_str(), stderr); }

    std::string text = "nothing heard";
};

Told& first() {
    static ModuleLifetime<Told> instance;
    return *instance;
}
Told& second() {
    static ModuleLifetime<Told> instance;
    return *instance;
}

TEST(ModuleLifetimeDeathTest, OutlivesWhatTheProcessHasLeftToItsExitAndGoesInReverseOrder) {
    EXPECT_EXIT(
        {
            // Registered before the objects are created, so it runs after ordinary statics are
            // destroyed.
            std::atexit([] {
                first().text = "first";
                second().text = "second";
            });
            first();
            second();
            std::exit(0);
        },
        ::testing::ExitedWithCode(0), "^gone: second\ngone: first\n$");
}
#endif

}  // namespace
}  // namespace quillmark::testing
