#include "page/doc_html_section.h"

#include <string>

#include "platform/sys_time.h"

namespace quillmark {

namespace {

constexpr std::string_view pageToken = "<PAGE>";
constexpr std::string_view fileToken = "<FILE>";
static_assert(pageToken.size() == fileToken.size(), "replace() relies on a single token length");

}  // namespace

struct DocHtmlSection::Record {
    OrxString text;
    DocHtmlTextState state;
    int testLevel = 0;
};

DocHtmlSection::DocHtmlSection() : record_(std::make_unique<Record>()) {}

DocHtmlSection::DocHtmlSection(const DocHtmlSection& other)
    : record_(std::make_unique<Record>(*other.record_)) {}

DocHtmlSection& DocHtmlSection::operator=(const DocHtmlSection& other) {
    if (this != &other) {
        *record_ = *other.record_;
    }
    return *this;
}

DocHtmlSection::~DocHtmlSection() = default;

void DocHtmlSection::clear() {
    record_->text.clear();
    record_->state.reset();
    record_->testLevel = 0;
}

void DocHtmlSection::recode(Recoding& recoding) {
    recoding.add(record_->text);
    record_->state.recode(recoding);
}

void DocHtmlSection::insertText(std::string_view html) {
    record_->text.append(html);
}

void DocHtmlSection::insertField(FieldKind kind) {
    const bool frozen = record_->testLevel != 0;
    switch (kind) {
        case FieldKind::date:
            insertText(frozen ? OrxString("XX/XX/XX") : SysTime::currentDate());
            break;
        case FieldKind::time:
            insertText(frozen ? OrxString("XX:XX:XX") : SysTime::currentTime());
            break;
        case FieldKind::fileName:
            insertText(fileToken);
            break;
        case FieldKind::pageNumber:
            insertText(pageToken);
            break;
        default:
            break;
    }
}

void DocHtmlSection::setFont(const FontData& font) {
    record_->state.font = font;
}
DocHtmlTextState* DocHtmlSection::getState() const noexcept {
    return &record_->state;
}
void DocHtmlSection::setTestLevel(int level) {
    record_->testLevel = level;
}

OrxString DocHtmlSection::getDisplayString(long pageNumber, const OrxString& fileName) const {
    OrxString text = record_->text;
    replace(text, pageToken, std::to_string(pageNumber));
    replace(text, fileToken, fileName);
    return text;
}

void DocHtmlSection::replace(OrxString& text, std::string_view token, std::string_view value) {
    const std::size_t hit = text.find(token);
    if (hit != OrxString::npos) {
        text.remove(hit, pageToken.size()).insert(hit, value);
    }
}

}  // namespace quillmark
