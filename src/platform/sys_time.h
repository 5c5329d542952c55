#pragma once

#include "foundation/orx_string.h"

namespace quillmark {

/// The clock as documents show it: local time, or, when `SOURCE_DATE_EPOCH` is set in the
/// environment, that second in UTC.
class SysTime {
public:
    /// "%m/%d/%y", for example "11/21/26".
    [[nodiscard]] static OrxString currentDate();
    /// "%H:%M:%S".
    [[nodiscard]] static OrxString currentTime();
    /// Date, a blank, time.
    [[nodiscard]] static OrxString currentDateTime();
};

}  // namespace quillmark
