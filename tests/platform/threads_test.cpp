#include <gtest/gtest.h>

#include <atomic>
#include <functional>
#include <memory>
#include <string>
#include <thread>
#include <vector>

#include "foundation/orx_exception.h"
#include "platform/files/drive_table.h"
#include "platform/files/sys_file.h"
#include "platform/line_end.h"
#include "platform/signal_to_exception.h"
#include "platform/sys_time.h"
#include "platform/trace.h"
#include "settings/register_cache.h"
#include "settings/register_dynamic.h"
#include "settings/settings_store.h"
#include "support/capturing_exception_log.h"
#include "support/capturing_trace.h"
#include "support/memory_settings_store.h"
#include "support/temp_dir.h"

namespace quillmark {
namespace {

constexpr int threadCount = 4;
constexpr int rounds = 200;

/// Runs the work in several threads that start at the same time.
void together(const std::function<void(int thread)>& work) {
    std::atomic<int> ready{0};
    std::vector<std::thread> threads;
    for (int i = 0; i < threadCount; ++i) {
        threads.emplace_back([&, i] {
            ++ready;
            while (ready < threadCount) {
                std::this_thread::yield();
            }
            work(i);
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
}

TEST(Threads, WriteWholeLinesToOneLog) {
    const TempDir dir;
    const OrxString name = dir.file("shared.log");
    together([&](int thread) {
        Trace trace;
        trace.purgeBefore(name);
        trace.open(name);
        trace.setLevel(Trace::calls);
        for (int i = 0; i < rounds; ++i) {
            trace.write(Trace::calls, std::string(20, static_cast<char>('a' + thread)) + "\n");
        }
    });
    const std::string text = dir.content("shared.log").value_or("");
    std::vector<int> lines(threadCount);
    const std::size_t lineLength = 20 + systemLineEnd().size();
    ASSERT_EQ(text.size(), lineLength * threadCount * rounds);
    for (std::size_t i = 0; i < text.size(); i += lineLength) {
        ASSERT_EQ(text.substr(i, 20), std::string(20, text[i]));
        ++lines.at(static_cast<std::size_t>(text[i] - 'a'));
    }
    EXPECT_EQ(lines, std::vector<int>(threadCount, rounds));
}

TEST(Threads, ShareOneSettingsStore) {
    const TempDir dir;
    RegisterBase::setStore(makeIniSettingsStore(dir.file("settings.ini")));
    together([&](int thread) {
        const OrxString own = "Name" + std::to_string(thread);
        for (int i = 0; i < 20; ++i) {
            EXPECT_TRUE(RegisterDynamic().write("Html", own, RegEntry::ofInt(i)));
            EXPECT_EQ(RegisterCache().read("Html", own, RegEntry::ofInt(-1)).asInt(), i);
        }
    });
    RegisterBase::setStore(nullptr);
}

TEST(Threads, ShareWhatIsProcessWide) {
    CapturingExceptionLog log;
    CapturingTrace listener;
    together([&](int thread) {
        const char letter = static_cast<char>('M' + thread);
        for (int i = 0; i < rounds; ++i) {
            DriveTable::set(letter, "/data");
            EXPECT_TRUE(DriveTable::find(letter).has_value());
            DriveTable::set(letter, "");
            OrxException::logCatch("reason");
            Trace().write(Trace::calls, "line\n");
            EXPECT_EQ(SysTime::currentDate().length(), 8U);
            CSignal2Exception::run([] {});
        }
    });
    EXPECT_EQ(log.messages().size(), std::size_t{threadCount} * rounds);
    EXPECT_EQ(listener.text().size(), std::size_t{threadCount} * rounds * 5);
}

TEST(Threads, CopyAndWriteFilesSideBySide) {
    const TempDir dir;
    dir.put("a.gif", std::string(10000, 'x'));
    together([&](int thread) {
        const OrxString sub = dir.file("sub" + std::to_string(thread));
        for (int i = 0; i < 20; ++i) {
            EXPECT_TRUE(FileSystem::current().makeDirectories(sub + "\\deep"));
            EXPECT_TRUE(SysFile::copy(dir.file("a.gif"), sub + "\\deep\\a.gif"));
        }
    });
    EXPECT_EQ(dir.content("sub0\\deep\\a.gif")->size(), 10000U);
}

}  // namespace
}  // namespace quillmark
