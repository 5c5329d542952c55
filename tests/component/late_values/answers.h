#pragma once

#include <array>
#include <string>

#include "component/late_values/value_table.h"

namespace quillmark::testing {

/// What parameters of each kind receive for a value in a late-bound call, in the order and format
/// of the table.
std::array<std::string, ValueRow::parameterCount> answersTo(const std::string& type,
                                                            const std::string& value);

}  // namespace quillmark::testing
