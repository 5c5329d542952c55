#include "component/late_values/value_table.h"

#include <stdexcept>

namespace quillmark::testing {
namespace {

constexpr std::string_view wineMark = " ~ ";

std::vector<std::string> cellsOf(const std::string& line) {
    std::vector<std::string> cells;
    std::size_t at = 0;
    for (std::size_t end = 0; end != std::string::npos; at = end + 1) {
        end = line.find('\t', at);
        cells.push_back(line.substr(at, end - at));
    }
    return cells;
}

ExpectedAnswer answerIn(const std::string& cell) {
    // Texts may have the mark in them.
    const std::size_t mark =
        cell.starts_with('"') ? cell.rfind("\"" + std::string(wineMark)) + 1 : cell.find(wineMark);
    if (mark == std::string::npos || mark == 0) {
        return {cell, {}};
    }
    return {cell.substr(0, mark), cell.substr(mark + wineMark.size())};
}

ValueRow rowIn(const std::string& line) {
    constexpr std::size_t firstAnswer = 2;
    std::vector<std::string> cells = cellsOf(line);
    if (cells.size() > firstAnswer + ValueRow::parameterCount + 1) {
        throw std::runtime_error("too many cells: " + line);
    }
    cells.resize(firstAnswer + ValueRow::parameterCount + 1);
    ValueRow row{cells[0], cells[1], {}, cells.back()};
    for (std::size_t i = 0; i < ValueRow::parameterCount; ++i) {
        row.answers[i] = answerIn(cells[firstAnswer + i]);
    }
    return row;
}

}  // namespace

std::vector<ValueRow> readValueTable(std::istream& in) {
    std::vector<ValueRow> rows;
    for (std::string line; std::getline(in, line);) {
        if (!line.empty() && !line.starts_with('#')) {
            rows.push_back(rowIn(line));
        }
    }
    return rows;
}

std::ostream& operator<<(std::ostream& out, const ValueRow& row) {
    out << row.type << '\t' << row.value;
    for (const ExpectedAnswer& answer : row.answers) {
        out << '\t' << answer.right;
        if (!answer.underWine.empty()) {
            out << wineMark << answer.underWine;
        }
    }
    return row.reason.empty() ? out : out << '\t' << row.reason;
}

}  // namespace quillmark::testing
