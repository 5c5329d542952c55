#include "platform/sys_time.h"

#include <gtest/gtest.h>

#include <ctime>
#include <regex>
#include <string>

#include "platform/system_facts.h"
#include "support/environment_variable.h"

namespace quillmark {
namespace {

constexpr const char* clockVariable = "SOURCE_DATE_EPOCH";

TEST(Clock, CanBeFixedByTheEnvironmentInUtc) {
    const EnvironmentVariable zone("TZ", "America/New_York");
    const EnvironmentVariable fixed(clockVariable, "1763733605");
    EXPECT_EQ(SysTime::currentDate(), "11/21/25");
    EXPECT_EQ(SysTime::currentTime(), "14:00:05");
    EXPECT_EQ(SysTime::currentDateTime(), "11/21/25 14:00:05");
}

TEST(Clock, KnowsTheEdgesOfTheCalendar) {
    const auto at = [](const char* second) {
        const EnvironmentVariable fixed(clockVariable, second);
        return SysTime::currentDateTime().str();
    };
    EXPECT_EQ(at("0"), "01/01/70 00:00:00");
    EXPECT_EQ(at("951782400"), "02/29/00 00:00:00");
    EXPECT_EQ(at("946684799"), "12/31/99 23:59:59");
    EXPECT_EQ(at("1709251199"), "02/29/24 23:59:59");
}

TEST(Clock, IgnoresAFixedTimeThatIsNotASecond) {
    for (const char* const text : {"", "now", "12x", "-5", " 5", "99999999999999999999"}) {
        const EnvironmentVariable fixed(clockVariable, text);
        EXPECT_NE(SysTime::currentDate().substr(6), "70") << text;
    }
}

TEST(Clock, ShowsLocalTimeOtherwise) {
    const EnvironmentVariable notFixed(clockVariable, std::nullopt);
    const auto texts = [] {
        const std::tm moment = system_facts::localTime(std::time(nullptr));
        char text[32];
        return std::string(text, std::strftime(text, sizeof text, "%m/%d/%y %H:%M:%S", &moment));
    };
    // The second may change between two calls. One of the two must match.
    const std::string before = texts();
    const std::string shown = SysTime::currentDateTime().str();
    const std::string after = texts();
    EXPECT_TRUE(shown >= before && shown <= after) << shown;
    EXPECT_TRUE(std::regex_match(SysTime::currentTime().str(),
                                 std::regex("[0-2][0-9]:[0-5][0-9]:[0-6][0-9]")));
}

}  // namespace
}  // namespace quillmark
