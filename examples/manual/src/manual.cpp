#include "manual.h"

#include "driver/boundary/operation_table.h"
#include "signature.h"
#include "text_markup.h"

namespace quillmark::manual {

namespace {

enum Field { date = 1, fileName = 3, pageNumber = 4 };
constexpr int alignRight = 3;

/// The model tells operations that open or close something from the rest.
std::string elementWord(const OperationText& text) {
    if (!text.pairs.starts_with('`')) {
        return "operation";
    }
    for (const char* beginning : {"end", "close", "stop", "pop"}) {
        if (text.name.starts_with(beginning)) {
            return "closing";
        }
    }
    return "opening";
}

}  // namespace

Manual::Manual(const ManualData& data, ManualNames names)
    : data_(data),
      names_(std::move(names)),
      composer_(calls_, [this](const std::string& line) { directive(line); }) {
    write();
}

void Manual::write() {
    calls_.add("create", names_.document);
    calls_.add("setOption", "title", "The IDocument interface");
    sections();
    chapters(data_.front);
    chapters(data_.inside);
    for (const OperationGroup& one : data_.groups) {
        group(one);
    }
    chapters(data_.reference);
    calls_.add("close");
}

void Manual::sections() {
    calls_.add("startHeader");
    calls_.add("insertText", "<SPAN CLASS=RUNNING>The IDocument interface, page ");
    calls_.add("insertField", pageNumber);
    calls_.add("insertText", "</SPAN>");
    calls_.add("endHeader");
    calls_.add("startFooter");
    calls_.add("setTextAlign", alignRight);
    calls_.add("insertText", "<SPAN CLASS=RUNNING>");
    calls_.add("insertField", fileName);
    calls_.add("insertText", ", made on ");
    calls_.add("insertField", date);
    calls_.add("insertText", "</SPAN>");
    calls_.add("endFooter");
}

void Manual::startPage(const std::string& directory) {
    if (pageDirectories_.empty()) {
        pageDirectories_.push_back(directory);
        return;
    }
    if (directory == pageDirectories_.back()) {
        calls_.add("insertPageBreak");
    } else if (directory.empty()) {
        calls_.add("popDirectory");
        calls_.add("insertPageBreak");
    } else {
        // Breaks the page as well.
        calls_.add("pushDirectory", directory);
    }
    pageDirectories_.push_back(directory);
}

void Manual::markElement(const std::string& name, const std::string& word) {
    const Handle handle = model_.add(name, word);
    calls_.add("insertMark", handle.low, false);
    calls_.add("insertMark", handle.high, true);
}

void Manual::chapters(const std::vector<Chapter>& chapters) {
    for (const Chapter& one : chapters) {
        chapter(one);
    }
}

void Manual::chapter(const Chapter& chapter) {
    startPage(chapter.directory);
    markElement(chapter.title, chapter.element);
    composer_.setCurrent({});
    composer_.entryHeading(chapter.level, chapter.title, chapterTag(chapter.id));
    composer_.blocks(chapter.body);
}

void Manual::group(const OperationGroup& group) {
    startPage(group.id);
    markElement(group.title, "package");
    composer_.setCurrent({});
    composer_.entryHeading(1, group.title, groupTag(group.id));
    composer_.blocks(group.intro);
    composer_.startTable({"Operation", "What it does"});
    for (const OperationText& text : group.operations) {
        composer_.row({'`' + text.name + '`', text.summary});
    }
    calls_.add("endTable");
    for (const OperationText& text : group.operations) {
        operation(text, group);
    }
}

void Manual::operation(const OperationText& text, const OperationGroup& group) {
    startPage(group.id);
    markElement(text.name, elementWord(text));
    composer_.setCurrent(text.name);
    composer_.entryHeading(2, text.name, operationTag(text.name));
    calls_.add("insertLocate");
    composer_.line(' ' + text.summary);
    calls_.add("insertEndl");
    facts(text, group);
    if (!text.arguments.empty()) {
        arguments(text);
    }
    composer_.plainHeading(3, "Effect");
    composer_.blocks(text.effect);
    composer_.plainHeading(3, "What is written");
    composer_.blocks(text.writes);
    for (const Example& one : text.examples) {
        example(one);
    }
    seeAlso(text, group);
}

void Manual::facts(const OperationText& text, const OperationGroup& group) {
    const Operation& row = *findOperation(text.name);
    calls_.add("startTable");
    composer_.row({"Call", '`' + signature(row) + '`'});
    composer_.row({"Dispatch identifier", std::to_string(row.dispatchId)});
    if (!text.pairs.empty()) {
        composer_.row({"Belongs together with", text.pairs});
    }
    composer_.row({"Group", '[' + group.title + "](group " + group.id + ')'});
    calls_.add("endTable");
}

void Manual::arguments(const OperationText& text) {
    composer_.plainHeading(3, "Arguments");
    composer_.startTable({"Name", "Kind", "Meaning"});
    const Operation& row = *findOperation(text.name);
    for (std::size_t i = 0; i < text.arguments.size(); ++i) {
        composer_.row({'`' + text.arguments[i].name + '`', kindName(row.parameters[i].kind),
                       text.arguments[i].text});
    }
    calls_.add("endTable");
}

void Manual::example(const Example& example) {
    composer_.plainHeading(3, "Example");
    composer_.codeBlock(example.calls);
    for (const ExpectedOutput& output : example.outputs) {
        composer_.line("In `" + output.file + "`:");
        composer_.codeBlock(output.lines);
    }
}

void Manual::seeAlso(const OperationText& text, const OperationGroup& group) {
    composer_.plainHeading(3, "See also");
    std::vector<std::string> items;
    for (const std::string& name : text.see) {
        items.push_back('`' + name + '`');
    }
    items.push_back('[' + group.title + "](group " + group.id + ')');
    composer_.list("List Bullet", items);
}

}  // namespace quillmark::manual
