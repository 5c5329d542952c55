#include "platform/sys_time.h"

#include <charconv>
#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <ctime>
#include <limits>
#include <optional>
#include <string_view>

#include "platform/system_facts.h"

namespace quillmark {

namespace {

/// The second that the environment sets the clock to. Nothing if it sets none, or one that the
/// clock cannot show.
std::optional<std::time_t> fixedMoment() {
    const char* const text = std::getenv("SOURCE_DATE_EPOCH");
    if (text == nullptr) {
        return std::nullopt;
    }
    constexpr std::int64_t lastOfYear9999 = 253402300799;
    const std::string_view digits(text);
    std::int64_t seconds = 0;
    const char* const end = digits.data() + digits.size();
    const auto [stop, error] = std::from_chars(digits.data(), end, seconds);
    const bool usable = error == std::errc{} && stop == end && seconds >= 0 &&
                        seconds <= lastOfYear9999 &&
                        seconds <= std::numeric_limits<std::time_t>::max();
    return usable ? std::optional(static_cast<std::time_t>(seconds)) : std::nullopt;
}

std::tm inUtc(std::time_t moment) {
    const std::chrono::sys_seconds point{std::chrono::seconds(moment)};
    const auto day = std::chrono::floor<std::chrono::days>(point);
    const std::chrono::year_month_day date(day);
    const std::chrono::hh_mm_ss time(point - day);
    std::tm result{};
    result.tm_year = static_cast<int>(date.year()) - 1900;
    result.tm_mon = static_cast<int>(static_cast<unsigned>(date.month())) - 1;
    result.tm_mday = static_cast<int>(static_cast<unsigned>(date.day()));
    result.tm_hour = static_cast<int>(time.hours().count());
    result.tm_min = static_cast<int>(time.minutes().count());
    result.tm_sec = static_cast<int>(time.seconds().count());
    return result;
}

std::tm now() {
    const std::optional<std::time_t> fixed = fixedMoment();
    return fixed ? inUtc(*fixed) : system_facts::localTime(std::time(nullptr));
}

void appendTwoDigits(OrxString& text, int number) {
    text.append(static_cast<char>('0' + number / 10 % 10));
    text.append(static_cast<char>('0' + number % 10));
}

/// Three numbers with two digits each. Formatting functions would depend on the locale.
OrxString triple(int first, int second, int third, char between) {
    OrxString text;
    appendTwoDigits(text, first);
    appendTwoDigits(text.append(between), second);
    appendTwoDigits(text.append(between), third);
    return text;
}

OrxString dateOf(const std::tm& moment) {
    return triple(moment.tm_mon + 1, moment.tm_mday, moment.tm_year % 100, '/');
}

OrxString timeOf(const std::tm& moment) {
    return triple(moment.tm_hour, moment.tm_min, moment.tm_sec, ':');
}

}  // namespace

OrxString SysTime::currentDate() {
    return dateOf(now());
}

OrxString SysTime::currentTime() {
    return timeOf(now());
}

OrxString SysTime::currentDateTime() {
    // The clock is read once, so that date and time match at midnight too.
    const std::tm moment = now();
    return dateOf(moment).append(' ').append(timeOf(moment));
}

}  // namespace quillmark
