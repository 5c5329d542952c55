#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace quillmark::testing {

/// The simplest implementation of a page: a map of lines, a multimap of marks, and an insertion
/// point. It moves the columns of marks one by one. DocHtmlPage must behave in the same way.
struct NaivePage {
    struct Mark {
        std::uint32_t line = 0;
        std::uint32_t column = 0;  // counted from 1
        std::uint32_t sequence = 0;
        std::string markup;
    };

    std::map<int, std::string> lines;
    int lineCount = 0;
    std::multimap<std::string, Mark> marks;
    Mark insertPoint;
    bool insertPointSet = false;

    void append(const std::string& text) {
        if (lineCount == 0) {
            lineCount = 1;
        }
        if (insertPointSet) {
            insert(text);
            return;
        }
        lines[lineCount] += text;
        if (text.find('\n') != std::string::npos) {
            ++lineCount;
        }
    }

    void addMark(const std::string& name, const std::string& markup) {
        if (lineCount == 0) {
            lineCount = 1;
        }
        marks.emplace(name, Mark{static_cast<std::uint32_t>(lineCount),
                                 static_cast<std::uint32_t>(lines[lineCount].size()) + 1,
                                 static_cast<std::uint32_t>(marks.size()) + 1, markup});
    }

    bool setInsertPoint(const std::string& name) {
        const auto mark = marks.find(name);
        if (mark == marks.end()) {
            return false;
        }
        insertPoint = mark->second;
        insertPointSet = true;
        return true;
    }

    void resolve(const std::string& name, const std::string& reference) {
        const std::string href = "HREF=\"" + reference + "\"";
        for (auto [mark, last] = marks.equal_range(name); mark != last; ++mark) {
            const std::string markup = mark->second.markup;
            insertPoint = mark->second;
            insertPointSet = true;
            if (markup.empty()) {
                append(href);
            } else if (const std::size_t hit = markup.find(name); hit != std::string::npos) {
                append(markup.substr(0, hit));
                append(href);
                append(markup.substr(hit + name.size()));
            } else {
                append(markup);
            }
        }
        marks.erase(name);
        insertPointSet = false;
    }

    [[nodiscard]] std::string text() const {
        std::string all;
        for (const auto& [number, line] : lines) {
            all += line;
        }
        return all;
    }

private:
    void insert(const std::string& text) {
        std::string& line = lines[static_cast<int>(insertPoint.line)];
        const std::uint32_t at = insertPoint.column - 1;
        if (at > line.size()) {
            line += text;
            return;
        }
        line.insert(at, text);
        const auto length = static_cast<std::uint32_t>(text.size());
        for (auto& [name, mark] : marks) {
            const bool behind = mark.column - 1 > at ||
                                (mark.column - 1 == at && mark.sequence > insertPoint.sequence);
            if (mark.line == insertPoint.line && behind) {
                mark.column += length;
            }
        }
        insertPoint.column += length;
    }
};

}  // namespace quillmark::testing
