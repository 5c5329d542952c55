// The pieces of the manual that its descriptions only name.

#include <map>
#include <stdexcept>

#include "driver/boundary/operation_table.h"
#include "json_writer.h"
#include "manual.h"
#include "subsystem_diagram.h"
#include "text_markup.h"

namespace quillmark::manual {

namespace {

enum Attribute { bold = 1, italic = 2, underline = 4, strike = 8 };
enum Alignment { noAlignment = 0, left = 1, centred = 2, right = 3 };
enum InsertAs { asLink = 1, asContents = 3 };

}  // namespace

void Manual::directive(const std::string& directive) {
    const std::size_t blank = directive.find(' ');
    const std::string name = directive.substr(0, blank);
    const std::string argument = blank == std::string::npos ? "" : directive.substr(blank + 1);
    if (name == "index") {
        index();
    } else if (name == "toc") {
        calls_.add("insertTOC");
    } else if (name == "diagram") {
        diagram();
    } else if (name == "gallery") {
        gallery();
    } else if (name == "include") {
        includeText(argument);
    } else if (name == "link") {
        linkFile(argument);
    } else {
        throw std::runtime_error("there is nothing like !" + name);
    }
}

/// All operations by dispatch identifier; their pages are still to come.
void Manual::index() {
    std::map<std::string, const OperationGroup*> groups;
    std::map<std::string, const OperationText*> texts;
    for (const OperationGroup& one : data_.groups) {
        for (const OperationText& text : one.operations) {
            groups[text.name] = &one;
            texts[text.name] = &text;
        }
    }
    composer_.startTable({"Id", "Operation", "What it does", "Group"});
    for (const Operation& row : operations()) {
        const OperationGroup& home = *groups.at(row.name);
        composer_.row({std::to_string(row.dispatchId)});
        calls_.add("addCell");
        calls_.add("insertXref", row.name, operationTag(row.name));
        calls_.add("addCell");
        composer_.line(texts.at(row.name)->summary);
        calls_.add("addCell");
        calls_.add("insertXref", home.title, groupTag(home.id));
    }
    calls_.add("endTable");
}

void Manual::diagram() {
    calls_.add("setTextAlign", centred);
    calls_.add("insertImage", names_.diagram(), "");
    calls_.add("setTextAlign", noAlignment);
}

void Manual::includeText(const std::string& name) {
    composer_.openFrame();
    calls_.add("insertFile", names_.sources + name, asContents);
    composer_.closeFrame();
}

void Manual::linkFile(const std::string& name) {
    calls_.add("insertFile", names_.sources + name, asLink);
    calls_.add("insertEndl");
}

void Manual::gallery() {
    composer_.entryHeading(2, "Headings", {});
    composer_.line("Levels 1 and 2 head the pages of this manual. The deeper ones:");
    calls_.add("insertEndl");
    for (int level = 3; level <= 9; ++level) {
        composer_.plainHeading(level, "Heading " + std::to_string(level));
    }
    composer_.entryHeading(2, "Alignment and fonts", {});
    const std::map<int, std::string> alignments = {
        {left, "at the left"}, {centred, "in the middle"}, {right, "at the right"}};
    for (const auto& [alignment, text] : alignments) {
        calls_.add("setTextAlign", alignment);
        calls_.add("insertText", text);
    }
    calls_.add("setTextAlign", noAlignment);
    const std::map<int, std::string> attributes = {
        {bold, "bold"}, {italic, "italic"}, {underline, "underlined"}, {strike, "struck out"}};
    for (const auto& [attribute, text] : attributes) {
        calls_.add("setFontAttribute", attribute, true);
        calls_.add("insertText", text);
        calls_.add("setFontAttribute", attribute, false);
        calls_.add("insertText", " ");
    }
    calls_.add("insertEndl");
    composer_.entryHeading(2, "Lists", {});
    composer_.list("List Number", {"the first item", "the second item"});
    composer_.list("List Number 2", {"an item of the second level", "and another one"});
    composer_.list("List Bullet", {"an item",
                                   "an item that is so long that it has to go on in "
                                   "a second line, where it begins at the left again, "
                                   "as nothing of a bulleted list is indented but its "
                                   "first lines"});
    composer_.list("List Bullet 2", {"an item of the second level"});
    composer_.line("A bulleted list is never closed, but the text after it looks as usual.");
    calls_.add("insertEndl");
    composer_.entryHeading(2, "Tables in tables", {});
    composer_.startTable({"Outer", "Inner"});
    composer_.row({"a cell", ""});
    composer_.table({{"one", "two"}, {"three", "four"}});
    composer_.row({"an empty cell", ""});
    calls_.add("endTable");
}

std::string Manual::imageMapsJson() const {
    return indentedJson([this](auto& writer) {
        writer.StartObject();
        writeText(writer, names_.diagram());
        writer.StartArray();
        for (const DiagramPart& part : diagramParts()) {
            if (!part.chapter.empty()) {
                writeText(writer, part.name);
                writeText(writer, chapterTag(part.chapter));
                writeText(writer, corners(part));
            }
        }
        writer.EndArray();
        writer.EndObject();
    });
}

}  // namespace quillmark::manual
