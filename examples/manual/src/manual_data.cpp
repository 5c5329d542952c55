#include "manual_data.h"

#include <map>
#include <sstream>
#include <stdexcept>

#include "data_file.h"
#include "driver/boundary/operation_table.h"

namespace quillmark::manual {

namespace {

[[noreturn]] void misplaced(const DataEntry& entry) {
    throw std::runtime_error(entry.place + ": @" + entry.keyword + " cannot stand here");
}

std::vector<std::string> words(const std::string& text) {
    std::istringstream input(text);
    std::vector<std::string> found;
    for (std::string word; input >> word;) {
        found.push_back(word);
    }
    return found;
}

ArgumentText argumentOf(const std::string& value) {
    const std::size_t blank = value.find(' ');
    return {value.substr(0, blank), value.substr(blank + 1)};
}

void addToOperation(OperationText& operation, const DataEntry& entry) {
    if (entry.keyword == "summary") {
        operation.summary = entry.value;
    } else if (entry.keyword == "pairs") {
        operation.pairs = entry.value;
    } else if (entry.keyword == "argument") {
        operation.arguments.push_back(argumentOf(entry.value));
    } else if (entry.keyword == "effect") {
        operation.effect = parseBlocks(entry.lines);
    } else if (entry.keyword == "writes") {
        operation.writes = parseBlocks(entry.lines);
    } else if (entry.keyword == "example") {
        operation.examples.push_back({entry.lines, {}});
    } else if (entry.keyword == "output" && !operation.examples.empty()) {
        operation.examples.back().outputs.push_back({entry.value, entry.lines});
    } else if (entry.keyword == "see") {
        operation.see = words(entry.value);
    } else {
        misplaced(entry);
    }
}

std::vector<OperationGroup> groupsOf(const std::vector<DataEntry>& entries) {
    std::vector<OperationGroup> groups;
    for (const DataEntry& entry : entries) {
        if (groups.empty() && entry.keyword != "group") {
            misplaced(entry);
        }
        if (entry.keyword == "group") {
            groups.push_back({entry.value, {}, {}, {}});
        } else if (entry.keyword == "title") {
            groups.back().title = entry.value;
        } else if (entry.keyword == "intro") {
            groups.back().intro = parseBlocks(entry.lines);
        } else if (entry.keyword == "operation") {
            groups.back().operations.push_back({entry.value, {}, {}, {}, {}, {}, {}, {}});
        } else if (groups.back().operations.empty()) {
            misplaced(entry);
        } else {
            addToOperation(groups.back().operations.back(), entry);
        }
    }
    return groups;
}

std::vector<Chapter> chaptersOf(const std::vector<DataEntry>& entries) {
    std::vector<Chapter> chapters;
    for (const DataEntry& entry : entries) {
        if (chapters.empty() && entry.keyword != "chapter") {
            misplaced(entry);
        }
        if (entry.keyword == "chapter") {
            chapters.push_back({entry.value, {}, 1, {}, {}, {}});
        } else if (entry.keyword == "title") {
            chapters.back().title = entry.value;
        } else if (entry.keyword == "level") {
            chapters.back().level = std::stoi(entry.value);
        } else if (entry.keyword == "directory") {
            chapters.back().directory = entry.value;
        } else if (entry.keyword == "element") {
            chapters.back().element = entry.value;
        } else if (entry.keyword == "body") {
            chapters.back().body = parseBlocks(entry.lines);
        } else {
            misplaced(entry);
        }
    }
    return chapters;
}

void holdAgainst(const Operation& row, const OperationText& text) {
    bool fits = row.parameters.size() == text.arguments.size();
    for (std::size_t i = 0; fits && i < text.arguments.size(); ++i) {
        fits = text.arguments[i].name == row.parameters[i].name;
    }
    if (!fits) {
        throw std::runtime_error(text.name + ": the arguments are not those of the table");
    }
    for (const std::string& name : text.see) {
        if (findOperation(name) == nullptr) {
            throw std::runtime_error(text.name + ": there is no operation " + name + " to see");
        }
    }
    if (text.summary.empty() || text.effect.empty() || text.writes.empty()) {
        throw std::runtime_error(text.name + ": summary, effect or what is written is missing");
    }
}

void holdAgainstTable(const std::vector<OperationGroup>& groups) {
    std::map<std::string, const OperationText*> described;
    for (const OperationGroup& group : groups) {
        for (const OperationText& operation : group.operations) {
            if (!described.emplace(operation.name, &operation).second) {
                throw std::runtime_error(operation.name + ": described twice");
            }
        }
    }
    for (const Operation& row : operations()) {
        const auto found = described.find(row.name);
        if (found == described.end()) {
            throw std::runtime_error(std::string(row.name) + ": not described");
        }
        holdAgainst(row, *found->second);
    }
    if (described.size() != operations().size()) {
        throw std::runtime_error("an operation is described that the table does not have");
    }
}

}  // namespace

ManualData readManualData(const std::filesystem::path& directory) {
    ManualData data;
    data.groups = groupsOf(readDataFiles(directory / "operations"));
    data.front = chaptersOf(readDataFile(directory / "chapters" / "1-front.txt"));
    data.inside = chaptersOf(readDataFile(directory / "chapters" / "2-inside.txt"));
    data.reference = chaptersOf(readDataFile(directory / "chapters" / "3-reference.txt"));
    holdAgainstTable(data.groups);
    return data;
}

}  // namespace quillmark::manual
