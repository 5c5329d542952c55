#include "operations_markdown.h"

#include <algorithm>
#include <cctype>
#include <map>

#include "driver/boundary/operation_table.h"
#include "signature.h"

namespace quillmark::manual {

namespace {

constexpr const char* preface =
    "# The operations\n"
    "\n"
    "<!-- Made by `manual_generator --operations-md`. Edit examples/manual/data/operations. -->\n"
    "\n"
    "A host calls the driver through the 42 operations of `IDocument`. This page describes the\n"
    "arguments of each operation, its effect, its counterpart and what it writes. Every operation\n"
    "returns 0.\n"
    "\n"
    "The examples are call streams as `dochtml-replay` plays them. They run inside a document\n"
    "`rep.htm`, between `create` and `close`, unless they show these calls themselves, and with\n"
    "the settings at their defaults. After each example comes a part of the file that it writes. "
    "A\n"
    "test plays all of them and compares.\n";

constexpr const char* limits =
    "\n## Limits\n"
    "\n"
    "- Texts and names are 8-bit unless the setting \"CharSet\" asks for UTF-8: a character that "
    "the\n"
    "  system's code page (Windows-1252 off Windows) does not hold becomes `?`, in file names "
    "too.\n"
    "  With \"UTF-8\" every character is kept, and half a surrogate pair becomes U+FFFD\n"
    "  ([settings.md](settings.md#documents-in-utf-8)).\n"
    "- A text keeps the form in which it comes. Nothing is normalized, so a composed and a "
    "decomposed\n"
    "  \"é\" are two names, as they are for most file systems.\n"
    "- The directories of `pushDirectory` and the output directory together may have 210 bytes; "
    "names\n"
    "  are left out at the end until they fit.\n"
    "- A line of a file that `insertFile` inserts is cut after 2000 characters and goes on in a "
    "new\n"
    "  line.\n"
    "- A list style opens at most 65,535 lists, and each file of contents has at most 256 MiB of\n"
    "  indentation.\n";

std::string lowered(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char letter) { return static_cast<char>(std::tolower(letter)); });
    return text;
}

std::string operationLink(const std::string& name) {
    return "[`" + name + "`](#" + lowered(name) + ')';
}

std::string lineMarkdown(const std::string& line, const std::string& current) {
    std::string markdown;
    for (const Span& span : parseSpans(line)) {
        switch (span.kind) {
            case SpanKind::code:
                markdown += span.text != current && findOperation(span.text) != nullptr
                                ? operationLink(span.text)
                                : '`' + span.text + '`';
                break;
            case SpanKind::bold:
                markdown += "**" + span.text + "**";
                break;
            case SpanKind::link:
            case SpanKind::text:
                markdown += span.text;
                break;
        }
    }
    return markdown;
}

std::string tableRow(const std::vector<std::string>& cells, const std::string& current) {
    std::string row = "|";
    for (const std::string& cell : cells) {
        row += ' ' + lineMarkdown(cell, current) + " |";
    }
    return row + '\n';
}

std::string tableHead(const std::vector<std::string>& cells) {
    std::string rule = "|";
    for (std::size_t i = 0; i < cells.size(); ++i) {
        rule += "---|";
    }
    return tableRow(cells, {}) + rule + '\n';
}

std::string fenced(const std::string& language, const std::vector<std::string>& lines) {
    std::string block = "```" + language + '\n';
    for (const std::string& line : lines) {
        block += line + '\n';
    }
    return block + "```\n";
}

std::string blockMarkdown(const Block& block, const std::string& current) {
    if (block.kind == BlockKind::table) {
        std::string table = tableHead(tableCells(block.lines.front()));
        for (std::size_t i = 1; i < block.lines.size(); ++i) {
            table += tableRow(tableCells(block.lines[i]), current);
        }
        return table;
    }
    if (block.kind == BlockKind::code) {
        return fenced("", block.lines);
    }
    std::string markdown;
    for (const std::string& line : block.lines) {
        markdown += lineMarkdown(line, current) + '\n';
    }
    return markdown;
}

std::string blocksMarkdown(const std::vector<Block>& blocks, const std::string& current) {
    std::string markdown;
    for (const Block& block : blocks) {
        markdown += '\n' + blockMarkdown(block, current);
    }
    return markdown;
}

std::string argumentsMarkdown(const OperationText& text, const Operation& row) {
    std::string table = '\n' + tableHead({"Argument", "Kind", "Meaning"});
    for (std::size_t i = 0; i < text.arguments.size(); ++i) {
        table += tableRow({'`' + text.arguments[i].name + '`', kindName(row.parameters[i].kind),
                           text.arguments[i].text},
                          text.name);
    }
    return table;
}

std::string exampleMarkdown(const Example& example) {
    std::string markdown = "\n**Example**\n\n" + fenced("json", example.calls);
    for (const ExpectedOutput& output : example.outputs) {
        markdown += "\nIn `" + output.file + "`:\n\n" + fenced("html", output.lines);
    }
    return markdown;
}

std::string seeMarkdown(const OperationText& text) {
    std::string markdown;
    for (const std::string& name : text.see) {
        markdown += (markdown.empty() ? "\nSee also: " : ", ") + operationLink(name);
    }
    return markdown + '\n';
}

std::string operationMarkdown(const OperationText& text) {
    const Operation& row = *findOperation(text.name);
    std::string markdown = "\n### " + text.name + "\n\n" + text.summary + "\n\n`" + signature(row) +
                           "`, dispatch identifier " + std::to_string(row.dispatchId) + '\n';
    if (!text.pairs.empty()) {
        markdown += "\nBelongs together with: " + lineMarkdown(text.pairs, text.name) + '\n';
    }
    if (!text.arguments.empty()) {
        markdown += argumentsMarkdown(text, row);
    }
    markdown += "\n**Effect**\n" + blocksMarkdown(text.effect, text.name);
    markdown += "\n**What is written**\n" + blocksMarkdown(text.writes, text.name);
    for (const Example& example : text.examples) {
        markdown += exampleMarkdown(example);
    }
    return markdown + seeMarkdown(text);
}

std::string indexMarkdown(const ManualData& data) {
    std::map<int, std::string> rows;
    for (const OperationGroup& group : data.groups) {
        for (const OperationText& text : group.operations) {
            const int identifier = findOperation(text.name)->dispatchId;
            rows[identifier] = tableRow(
                {std::to_string(identifier), '`' + text.name + '`', text.summary, group.title}, {});
        }
    }
    std::string table = '\n' + tableHead({"Id", "Operation", "What it does", "Group"});
    for (const auto& [identifier, row] : rows) {
        table += row;
    }
    return table;
}

}  // namespace

std::string operationsMarkdown(const ManualData& data) {
    std::string markdown = preface + indexMarkdown(data);
    for (const OperationGroup& group : data.groups) {
        markdown += "\n## " + group.title + '\n' + blocksMarkdown(group.intro, {});
        for (const OperationText& text : group.operations) {
            markdown += operationMarkdown(text);
        }
    }
    return markdown + limits;
}

}  // namespace quillmark::manual
