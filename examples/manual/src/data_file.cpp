#include "data_file.h"

#include <algorithm>
#include <fstream>
#include <stdexcept>

namespace quillmark::manual {

namespace {

DataEntry startEntry(const std::string& line, std::string place) {
    const std::size_t blank = line.find(' ');
    const std::string value = blank == std::string::npos ? "" : line.substr(blank + 1);
    return {line.substr(1, blank - 1), value, {}, std::move(place)};
}

void dropBlankEnd(DataEntry& entry) {
    while (!entry.lines.empty() && entry.lines.back().empty()) {
        entry.lines.pop_back();
    }
}

}  // namespace

std::vector<DataEntry> readDataFile(const std::filesystem::path& file) {
    std::ifstream input(file);
    if (!input) {
        throw std::runtime_error("cannot read " + file.string());
    }
    std::vector<DataEntry> entries;
    int number = 0;
    for (std::string line; std::getline(input, line);) {
        ++number;
        const std::string place = file.filename().string() + ':' + std::to_string(number);
        if (line.starts_with('@')) {
            entries.push_back(startEntry(line, place));
        } else if (entries.empty()) {
            throw std::runtime_error(place + ": a line before the first entry");
        } else {
            entries.back().lines.push_back(line);
        }
    }
    std::for_each(entries.begin(), entries.end(), dropBlankEnd);
    return entries;
}

std::vector<DataEntry> readDataFiles(const std::filesystem::path& directory) {
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::directory_iterator(directory)) {
        files.push_back(entry.path());
    }
    std::sort(files.begin(), files.end());
    std::vector<DataEntry> all;
    for (const std::filesystem::path& file : files) {
        std::vector<DataEntry> entries = readDataFile(file);
        all.insert(all.end(), entries.begin(), entries.end());
    }
    return all;
}

}  // namespace quillmark::manual
