#include "navigator/entries/number_table.h"

#include <algorithm>
#include <string>

#include "navigator/data/json_text.h"

namespace quillmark {

void NumberTable::set(std::uint32_t number, std::uint32_t entry) {
    if (number > entries_.size()) {
        entries_.resize(number, none);
    }
    entries_[number - 1] = entry;
}

void NumberTable::write(std::string_view kind, const DataFiles& files) const {
    for (std::size_t first = 0; first < entries_.size(); first += numbersPerFile) {
        const std::size_t end = std::min(entries_.size(), first + numbersPerFile);
        std::string json = "[";
        for (std::size_t at = first; at < end; ++at) {
            json.append(at == first ? "" : ",");
            if (entries_[at] == none) {
                json.append("null");
            } else {
                json_text::appendNumber(json, entries_[at]);
            }
        }
        files.write(kind, first / numbersPerFile, json.append("]"));
    }
}

}  // namespace quillmark
