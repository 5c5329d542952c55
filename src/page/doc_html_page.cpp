#include "page/doc_html_page.h"

#include <array>
#include <span>
#include <utility>

#include "foundation/orx_exception.h"
#include "host/document_observer.h"
#include "page/html_head.h"
#include "page/links/link_attribute.h"
#include "page/links/links.h"
#include "page/marks/open_marks.h"
#include "page/marks/splice_text.h"
#include "platform/files/failure_lines.h"
#include "platform/files/sys_file.h"
#include "platform/out_of_memory.h"
#include "platform/signal_to_exception.h"
#include "platform/text_encoding.h"

namespace quillmark {

namespace {

constexpr std::string_view fileEnd = "\n</HTML>\n";

}  // namespace

struct DocHtmlPage::Record {
    OrxString top;
    SpliceText text;
    OrxString tail;
    OrxString title;
    OrxString styleSheetLink;
    OrxString headExtra;
    OrxString fileName;
    OpenMarks marks;
    SpliceText::MarkId insertPoint = SpliceText::none;
    Trace trace;
    std::shared_ptr<PageReader> reader;
    std::uint32_t number = 0;
    /// That of the document that made the page. A page that is held back keeps it.
    const TextEncoding* encoding = &TextEncoding::current();

    void fillMark(SpliceText::MarkId mark, std::string_view name, std::string_view reference);
    void writeFile() const;
    void reportUnresolved() const;
    void reset() noexcept;
};

void DocHtmlPage::Record::fillMark(SpliceText::MarkId mark, std::string_view name,
                                   std::string_view reference) {
    const auto place = LinkAttribute::placeIn(text.markup(mark), name);
    if (place.isFound()) {
        text.fill(mark, place.start, place.length,
                  {LinkAttribute::opening, reference, LinkAttribute::end});
    } else {
        text.fill(mark);
    }
}

void DocHtmlPage::Record::writeFile() const {
    const std::string head = htmlHead(title, styleSheetLink, headExtra, *encoding);
    const std::string merged = text.isPlain() ? std::string() : text.merged();
    const std::string_view body = text.isPlain() ? text.plain() : std::string_view(merged);
    const std::array<std::string_view, 5> pieces = {head, top.view(), body, tail.view(), fileEnd};
    switch (SysFile::writeWhole(fileName, pieces)) {
        case WriteResult::done:
            DocumentObserver::current().pageWritten(fileName);
            if (reader != nullptr) {
                survive(trace, "the words of a page for the search",
                        [&] { reader->read(number, std::span(pieces).subspan(1)); });
            }
            return;
        case WriteResult::openFailed:
            OrxException::raise("Error opening file: " + fileName);
        case WriteResult::writeFailed:
            OrxException::raise("Error writing to file: " + fileName);
    }
}

void DocHtmlPage::Record::reportUnresolved() const {
    if (marks.size() == 0) {
        return;
    }
    DocumentObserver::current().unresolvedReferences(fileName, marks.size());
    if (!trace.isTrace(Trace::reports)) {
        return;
    }
    OrxString report("Unresolved references on page ");
    report.append(fileName).append('\n');
    marks.forEach([&](std::string_view name, SpliceText::MarkId mark) {
        report.append("  ").append(name).append(" near line ");
        report.append(std::to_string(text.line(mark)));
        const std::string_view markup = text.markup(mark);
        if (!markup.empty()) {
            report.append(" ").append(markup);
        }
        report.append('\n');
    });
    trace.write(Trace::reports, report);
}

void DocHtmlPage::Record::reset() noexcept {
    top = {};
    text = {};
    tail = {};
    title = {};
    headExtra = {};
    fileName = {};
    marks = {};
    insertPoint = SpliceText::none;
    reader = nullptr;
    number = 0;
    // The trace stays, and the style-sheet link: a page that is filled again keeps its style sheet.
}

DocHtmlPage::DocHtmlPage() : record_(std::make_unique<Record>()) {}

DocHtmlPage::DocHtmlPage(const DocHtmlPage& other)
    : OrxObject(other), record_(std::make_unique<Record>(*other.record_)) {}

DocHtmlPage& DocHtmlPage::operator=(const DocHtmlPage& other) {
    if (this != &other) {
        *record_ = *other.record_;
    }
    return *this;
}

DocHtmlPage::~DocHtmlPage() {
    try {
        close();
    } catch (...) {
        OrxException::logCaught();
    }
}

void DocHtmlPage::appendTop(std::string_view text) {
    record_->top.append(text);
}
void DocHtmlPage::appendTail(std::string_view text) {
    record_->tail.append(text);
}
void DocHtmlPage::appendHead(std::string_view text) {
    record_->headExtra.append(text);
}

void DocHtmlPage::append(std::string_view text) {
    if (record_->insertPoint != SpliceText::none) {
        record_->text.insertAt(record_->insertPoint, text);
    } else {
        record_->text.append(text);
    }
}

void DocHtmlPage::setFileName(const OrxString& name) {
    record_->fileName = name;
}
const OrxString& DocHtmlPage::getFileName() const noexcept {
    return record_->fileName;
}
void DocHtmlPage::setTitle(const OrxString& title) {
    record_->title = title;
}
void DocHtmlPage::setStyleSheet(const OrxString& href) {
    record_->styleSheetLink = href;
}
void DocHtmlPage::setTrace(const Trace& trace) {
    record_->trace = trace;
}

void DocHtmlPage::setReader(std::shared_ptr<PageReader> reader, std::uint32_t number) {
    record_->reader = std::move(reader);
    record_->number = number;
}

bool DocHtmlPage::isEmpty() const noexcept {
    return getLineCount() == 0;
}
std::int32_t DocHtmlPage::getLineCount() const noexcept {
    return record_->text.lineCount();
}

bool DocHtmlPage::differs(const DocHtmlPage& other) const noexcept {
    return record_->fileName != other.record_->fileName;
}

OrxString DocHtmlPage::relativeLink(const OrxString& target, const OrxString& base) {
    return links::relative(target, base);
}

DocHtmlPage::MarkNameId DocHtmlPage::addMark(std::string_view name, std::string_view markup,
                                             MarkNameId hint) {
    const auto sequence = static_cast<std::uint32_t>(record_->marks.size() + 1);
    const SpliceText::MarkId mark = record_->text.addMark(markup, sequence);
    try {
        return record_->marks.add(name, mark, hint);
    } catch (...) {
        record_->text.drop(mark);
        throw;
    }
}

bool DocHtmlPage::hasMarks() const noexcept {
    return getMarkCount() != 0;
}
std::size_t DocHtmlPage::getMarkCount() const noexcept {
    return record_->marks.size();
}

void DocHtmlPage::removeMarks(std::string_view name) {
    record_->marks.take(name, [this](SpliceText::MarkId mark) {
        if (record_->insertPoint == mark) {
            record_->insertPoint = SpliceText::none;
        }
        record_->text.drop(mark);
    });
}

void DocHtmlPage::resolveMarks(std::string_view name, std::string_view reference, MarkNameId hint) {
    const auto fill = [&](SpliceText::MarkId mark) { record_->fillMark(mark, name, reference); };
    record_->marks.take(name, fill, hint);
    clearInsertPoint();
}

bool DocHtmlPage::setInsertPoint(std::string_view name) {
    const SpliceText::MarkId mark = record_->marks.first(name);
    if (mark == SpliceText::none) {
        return false;
    }
    record_->text.rewind(mark);
    record_->insertPoint = mark;
    return true;
}

void DocHtmlPage::clearInsertPoint() noexcept {
    record_->insertPoint = SpliceText::none;
}

void DocHtmlPage::reserve(std::size_t bytes) {
    record_->text.reserve(bytes);
}

std::size_t DocHtmlPage::bodySize() const noexcept {
    return record_->text.plain().size();
}

void DocHtmlPage::compact() {
    record_->text.compact();
    record_->marks.compact();
}

std::vector<std::pair<OrxString, htmlMarkPosition>> DocHtmlPage::marks() const {
    std::vector<std::pair<OrxString, htmlMarkPosition>> all;
    record_->marks.forEach([&](std::string_view name, SpliceText::MarkId mark) {
        const SpliceText& text = record_->text;
        all.emplace_back(name, htmlMarkPosition{text.line(mark), text.column(mark),
                                                OrxString(text.markup(mark)), text.sequence(mark)});
    });
    return all;
}

void DocHtmlPage::close() {
    if (isEmpty()) {
        return;
    }
    const TextEncoding::Scope scope(*record_->encoding);
    try {
        survive(record_->trace, "a page",
                [this] { CSignal2Exception::run([this] { record_->writeFile(); }); });
    } catch (const OrxException&) {
        failure_lines::writeReason(record_->trace);
        OrxException::logCaught();
    }
    survive(record_->trace, "the report of unresolved references",
            [this] { record_->reportUnresolved(); });
    record_->reset();
}

}  // namespace quillmark
