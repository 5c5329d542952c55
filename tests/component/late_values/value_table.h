#pragma once

#include <array>
#include <istream>
#include <ostream>
#include <string>
#include <vector>

namespace quillmark::testing {

/// What one parameter receives for a value, such as `-1`, `true`, `"text"`, or the name of a
/// failure.
struct ExpectedAnswer {
    std::string right;
    /// The answer of Wine, if it differs.
    std::string underWine;

    [[nodiscard]] const std::string& systemAnswer() const {
        return underWine.empty() ? right : underWine;
    }
};

/// One row of the table: a value that a host passes, and what parameters of each kind receive for
/// it.
///
///     BSTR  "&HFFFF"  -1  65535  true  "&HFFFF"
///
/// The cells, with a tab between them, are the value's type, the value, the answers of a short
/// integer, a long one, a boolean and a text, and the reason why Wine gives another answer than
/// Windows, where it does. Such an answer reads `overflow ~ -1`: Wine's follows the "~".
struct ValueRow {
    static constexpr std::size_t parameterCount = 4;

    std::string type;
    std::string value;
    std::array<ExpectedAnswer, parameterCount> answers;
    std::string reason;
};

/// Reads a table. Skips empty lines and lines that begin with "#". A row may end after its value.
/// Throws `std::runtime_error` for a row with too many cells.
std::vector<ValueRow> readValueTable(std::istream& in);
std::ostream& operator<<(std::ostream& out, const ValueRow& row);

}  // namespace quillmark::testing
