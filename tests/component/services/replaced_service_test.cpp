// A service of the host that is replaced while others may be calling it.

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

#include "component/module/module_state.h"
#include "component/object/recorded_object.h"
#include "component/services/module_services.h"

namespace quillmark::testing {
namespace {

/// Counts how often the host is called.
DochtmlObserver observerOf(int& calls) {
    DochtmlObserver observer{};
    observer.context = &calls;
    observer.contentsEntryAdded = [](void* context) { ++*static_cast<int*>(context); };
    return observer;
}

class ReplacedService : public ::testing::Test {
protected:
    void TearDown() override {
        // Without a user this also releases the services that a test has left.
        EXPECT_EQ(ModuleServices::module().setObserver(nullptr), S_OK);
        EXPECT_EQ(ModuleServices::module().retiredCount(), 0U);
    }
};

TEST_F(ReplacedService, CanStillBeCalledByWhoeverFetchedItBefore) {
    const ServiceUser another;
    int calls = 0;
    const DochtmlObserver observer = observerOf(calls);
    ASSERT_EQ(ModuleServices::module().setObserver(&observer), S_OK);
    DocumentObserver& takenUp = DocumentObserver::current();
    EXPECT_EQ(ModuleServices::module().setObserver(nullptr), S_OK);
    takenUp.contentsEntryAdded();
    EXPECT_EQ(calls, 1);
}

TEST_F(ReplacedService, IsReleasedWhenNobodyCanHaveFetchedIt) {
    const DochtmlObserver deaf{};
    {
        const ServiceUser another;
        ASSERT_EQ(ModuleServices::module().setObserver(&deaf), S_OK);
        ASSERT_EQ(ModuleServices::module().setObserver(&deaf), S_OK);
        ASSERT_EQ(ModuleServices::module().setObserver(&deaf), S_OK);
        EXPECT_EQ(ModuleServices::module().retiredCount(), 2U);
    }
    EXPECT_EQ(ModuleServices::module().setObserver(nullptr), S_OK);
    EXPECT_EQ(ModuleServices::module().retiredCount(), 0U);
}

TEST_F(ReplacedService, IsKeptForADocument) {
    const DochtmlObserver deaf{};
    {
        const RecordedObject document;
        ASSERT_EQ(ModuleServices::module().setObserver(&deaf), S_OK);
        EXPECT_EQ(ModuleServices::module().setObserver(nullptr), S_OK);
        EXPECT_EQ(ModuleServices::module().retiredCount(), 1U);
    }
    EXPECT_EQ(ModuleServices::module().setObserver(nullptr), S_OK);
    EXPECT_EQ(ModuleServices::module().retiredCount(), 0U);
}

TEST_F(ReplacedService, MayBeReplacedWhileAnotherThreadWritesItsTrace) {
    constexpr int rounds = 2000;
    std::atomic<int> heard{0};
    const DochtmlTraceListener listener{&heard, Trace::calls,
                                        [](void* context, std::int32_t, const DochtmlText*) {
                                            ++*static_cast<std::atomic<int>*>(context);
                                        }};
    ASSERT_EQ(ModuleServices::module().setTraceListener(&listener), S_OK);
    std::thread writer([] {
        const ServiceUser document;
        Trace trace;
        for (int round = 0; round < rounds; ++round) {
            trace.write(Trace::calls, "dochtml->insertEndl();\n");
        }
    });
    for (int round = 0; round < rounds; ++round) {
        EXPECT_EQ(ModuleServices::module().setTraceListener(&listener), S_OK);
    }
    writer.join();
    EXPECT_EQ(ModuleServices::module().setTraceListener(nullptr), S_OK);
    EXPECT_EQ(heard, rounds);
}

}  // namespace
}  // namespace quillmark::testing
