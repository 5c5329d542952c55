#include "blocks.h"

#include <cctype>

namespace quillmark::manual {

namespace {

constexpr std::string_view codeIndent = "    ";

bool isNumbered(std::string_view line) {
    const std::size_t dot = line.find(". ");
    return dot == 1 && std::isdigit(static_cast<unsigned char>(line[0])) != 0;
}

struct Line {
    BlockKind kind;
    int level;
    std::string_view text;
};

Line classify(std::string_view line) {
    if (line.starts_with(codeIndent)) {
        return {BlockKind::code, 0, line.substr(codeIndent.size())};
    }
    if (line.starts_with('#')) {
        const std::size_t level = line.find_first_not_of('#');
        return {BlockKind::heading, static_cast<int>(level), line.substr(level + 1)};
    }
    if (line.starts_with("- ")) {
        return {BlockKind::bullets, 0, line.substr(2)};
    }
    if (isNumbered(line)) {
        return {BlockKind::numbers, 0, line.substr(3)};
    }
    if (line.starts_with("| ")) {
        return {BlockKind::table, 0, line};
    }
    if (line.starts_with('!')) {
        return {BlockKind::directive, 0, line.substr(1)};
    }
    return {BlockKind::paragraph, 0, line};
}

bool spansLines(BlockKind kind) {
    return kind == BlockKind::bullets || kind == BlockKind::numbers || kind == BlockKind::table ||
           kind == BlockKind::code;
}

}  // namespace

std::vector<Block> parseBlocks(const std::vector<std::string>& lines) {
    std::vector<Block> blocks;
    bool apart = true;
    for (const std::string& line : lines) {
        if (line.empty()) {
            apart = true;
            continue;
        }
        const Line found = classify(line);
        if (apart || !spansLines(found.kind) || blocks.back().kind != found.kind) {
            blocks.push_back({found.kind, found.level, {}});
        }
        blocks.back().lines.emplace_back(found.text);
        apart = false;
    }
    return blocks;
}

std::vector<std::string> tableCells(std::string_view row) {
    std::vector<std::string> cells;
    row.remove_prefix(2);
    for (std::size_t end = row.find(" |"); end != std::string_view::npos; end = row.find(" |")) {
        cells.emplace_back(row.substr(0, end));
        row.remove_prefix(end + 2);
        row.remove_prefix(row.empty() ? 0 : 1);
    }
    return cells;
}

namespace {

/// Takes a run framed by `open` and `close` off the line; false when it does not begin with one.
bool takeFramed(std::string_view& line, std::string_view open, std::string_view close,
                std::string& inside) {
    if (!line.starts_with(open)) {
        return false;
    }
    const std::size_t end = line.find(close, open.size());
    if (end == std::string_view::npos) {
        return false;
    }
    inside = line.substr(open.size(), end - open.size());
    line.remove_prefix(end + close.size());
    return true;
}

bool takeLink(std::string_view& line, Span& span) {
    std::string_view rest = line;
    if (!takeFramed(rest, "[", "]", span.text) || !takeFramed(rest, "(", ")", span.target)) {
        return false;
    }
    line = rest;
    span.kind = SpanKind::link;
    return true;
}

bool takeMarked(std::string_view& line, Span& span) {
    if (takeFramed(line, "`", "`", span.text)) {
        span.kind = SpanKind::code;
        return true;
    }
    if (takeFramed(line, "**", "**", span.text)) {
        span.kind = SpanKind::bold;
        return true;
    }
    return takeLink(line, span);
}

}  // namespace

std::vector<Span> parseSpans(std::string_view line) {
    std::vector<Span> spans;
    std::string plain;
    const auto flush = [&] {
        if (!plain.empty()) {
            spans.push_back({SpanKind::text, plain, {}});
            plain.clear();
        }
    };
    while (!line.empty()) {
        Span span;
        if (takeMarked(line, span)) {
            flush();
            spans.push_back(span);
        } else {
            plain += line.front();
            line.remove_prefix(1);
        }
    }
    flush();
    return spans;
}

}  // namespace quillmark::manual
