#pragma once

#include "foundation/orx_string.h"

namespace quillmark {

/// The time shown in documents: local time or, if the environment sets `SOURCE_DATE_EPOCH`, that
/// second in UTC.
class SysTime {
public:
    /// Month, day, year, for example "11/21/26".
    [[nodiscard]] static OrxString currentDate();
    /// Hours, minutes, seconds, for example "09:05:00".
    [[nodiscard]] static OrxString currentTime();
    /// Date, a blank, time.
    [[nodiscard]] static OrxString currentDateTime();
};

}  // namespace quillmark
