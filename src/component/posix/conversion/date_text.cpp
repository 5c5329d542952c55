#include "component/posix/conversion/date_text.h"

#include <chrono>
#include <cmath>
#include <cstdint>

namespace quillmark {
namespace {

constexpr std::int64_t secondsOfDay = 86400;

std::string shownDay(std::int64_t day) {
    namespace chrono = std::chrono;
    constexpr chrono::sys_days dayZero = chrono::year{1899} / chrono::December / 30;
    const chrono::year_month_day date = dayZero + chrono::days(day);
    return std::to_string(unsigned{date.month()}) + '/' + std::to_string(unsigned{date.day()}) +
           '/' + std::to_string(int{date.year()});
}

std::string twoDigits(std::int64_t number) {
    return (number < 10 ? "0" : "") + std::to_string(number);
}

std::string shownTime(std::int64_t second) {
    const std::int64_t hour = second / 3600;
    const std::int64_t shownHour = hour % 12 == 0 ? 12 : hour % 12;
    return std::to_string(shownHour) + ':' + twoDigits(second / 60 % 60) + ':' +
           twoDigits(second % 60) + (hour < 12 ? " AM" : " PM");
}

}  // namespace

std::optional<std::string> shownDate(double date) {
    constexpr double beforeFirstDay = -657435;
    constexpr double afterLastDay = 2958466;
    if (!(date > beforeFirstDay && date < afterLastDay)) {
        return std::nullopt;
    }
    double wholeDay = 0;
    const double time = std::fabs(std::modf(date, &wholeDay));
    const auto second =
        static_cast<std::int64_t>(std::floor(time * static_cast<double>(secondsOfDay) + 0.5));
    // The last half second of a day is rounded up to the next day.
    const std::int64_t day = static_cast<std::int64_t>(wholeDay) + second / secondsOfDay;
    if (wholeDay == 0) {
        return shownTime(second % secondsOfDay);
    }
    return time == 0 ? shownDay(day) : shownDay(day) + ' ' + shownTime(second % secondsOfDay);
}

}  // namespace quillmark
