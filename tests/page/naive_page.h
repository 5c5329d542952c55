#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace quillmark::testing {

/// The simplest implementation of a page: a map of lines, a multimap of marks, and an insertion
/// point. It moves the columns of marks one by one. DocHtmlPage must behave in the same way.
/// `Text` is a string of bytes, or of the characters of another encoding.
template <typename Text>
struct BasicNaivePage {
    using Character = typename Text::value_type;
    struct Mark {
        std::uint32_t line = 0;
        std::uint32_t column = 0;  // counted from 1
        std::uint32_t sequence = 0;
        Text markup;
    };

    std::map<int, Text> lines;
    int lineCount = 0;
    std::multimap<Text, Mark> marks;
    Mark insertPoint;
    bool insertPointSet = false;

    void append(const Text& text) {
        if (lineCount == 0) {
            lineCount = 1;
        }
        if (insertPointSet) {
            insert(text);
            return;
        }
        lines[lineCount] += text;
        if (text.find(Character{'\n'}) != Text::npos) {
            ++lineCount;
        }
    }

    void addMark(const Text& name, const Text& markup) {
        if (lineCount == 0) {
            lineCount = 1;
        }
        marks.emplace(name, Mark{static_cast<std::uint32_t>(lineCount),
                                 static_cast<std::uint32_t>(lines[lineCount].size()) + 1,
                                 static_cast<std::uint32_t>(marks.size()) + 1, markup});
    }

    bool setInsertPoint(const Text& name) {
        const auto mark = marks.find(name);
        if (mark == marks.end()) {
            return false;
        }
        insertPoint = mark->second;
        insertPointSet = true;
        return true;
    }

    void resolve(const Text& name, const Text& reference) {
        const Text href = ascii("HREF=\"") + reference + ascii("\"");
        for (auto [mark, last] = marks.equal_range(name); mark != last; ++mark) {
            const Text markup = mark->second.markup;
            insertPoint = mark->second;
            insertPointSet = true;
            if (markup.empty()) {
                append(href);
            } else if (const std::size_t hit = markup.find(name); hit != Text::npos) {
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

    [[nodiscard]] Text text() const {
        Text all;
        for (const auto& [number, line] : lines) {
            all += line;
        }
        return all;
    }

private:
    static Text ascii(std::string_view text) { return Text(text.begin(), text.end()); }

    void insert(const Text& text) {
        Text& line = lines[static_cast<int>(insertPoint.line)];
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

using NaivePage = BasicNaivePage<std::string>;

}  // namespace quillmark::testing
