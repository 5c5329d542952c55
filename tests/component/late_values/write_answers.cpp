// Fills the table of late-bound values with the answers of the system that it runs on.
//
//     component_late_answers TABLE > NEW-TABLE
//
// Run it under Wine, after a row with only its type and its value was added. Remarks stay. A row
// with a reason keeps its answers for Windows; Wine's are added after them where they differ.

#include <fstream>
#include <iostream>
#include <sstream>

#include "component/late_values/answers.h"

using namespace quillmark::testing;

namespace {

void answer(ValueRow& row) {
    const auto answers = answersTo(row.type, row.value);
    for (std::size_t i = 0; i < answers.size(); ++i) {
        ExpectedAnswer& expected = row.answers[i];
        if (row.reason.empty()) {
            expected.right = answers[i];
        }
        expected.underWine = answers[i] == expected.right ? std::string() : answers[i];
    }
}

}  // namespace

int main(int argc, char** argv) {
    std::ifstream table(argc == 2 ? argv[1] : "");
    if (!table) {
        std::cerr << "Usage: component_late_answers TABLE\n";
        return 2;
    }
    for (std::string line; std::getline(table, line);) {
        std::istringstream one(line);
        for (ValueRow& row : readValueTable(one)) {
            answer(row);
            std::cout << row << '\n';
        }
        if (line.empty() || line.starts_with('#')) {
            std::cout << line << '\n';
        }
    }
    return 0;
}
