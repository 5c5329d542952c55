#pragma once

#include <array>
#include <string>

#include "component/late_values/value_table.h"

namespace quillmark::testing {

/// What parameters of each kind get of a value in a late-bound call, in the order and the form of
/// the table.
std::array<std::string, ValueRow::parameterCount> answersTo(const std::string& type,
                                                            const std::string& value);

}  // namespace quillmark::testing
