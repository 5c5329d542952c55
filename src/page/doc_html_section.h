#pragma once

#include <memory>
#include <string_view>

#include "page/field_kind.h"
#include "page/text_state.h"

namespace quillmark {

/// The header or the footer of a document. It is collected once and then added to every page.
///
/// Page number and file name are kept as tokens, which are replaced when a page is finished. Date
/// and time are written when the field is inserted, so they are the same on every page.
class DocHtmlSection {
public:
    DocHtmlSection();
    DocHtmlSection(const DocHtmlSection& other);
    DocHtmlSection& operator=(const DocHtmlSection& other);
    virtual ~DocHtmlSection();

    /// Removes the text, resets the text state and sets the test level to 0.
    void clear();
    /// Converts its text and its state between two encodings.
    void recode(Recoding& recoding);
    /// Appends HTML, which is not escaped.
    void insertText(std::string_view html);
    /// Appends a field. An unknown kind appends nothing.
    void insertField(FieldKind kind);
    void setFont(const FontData& font);
    /// The text state while the section is open. It is valid as long as the section.
    [[nodiscard]] DocHtmlTextState* getState() const noexcept;
    /// Any level but 0 replaces date and time by fixed placeholders.
    void setTestLevel(int level);

    /// The text of the section for one page. Only the first token of each kind is replaced. A
    /// second page number in a footer stays a token.
    [[nodiscard]] OrxString getDisplayString(long pageNumber, const OrxString& fileName) const;

private:
    static void replace(OrxString& text, std::string_view token, std::string_view value);

    struct Record;
    std::unique_ptr<Record> record_;
};

}  // namespace quillmark
