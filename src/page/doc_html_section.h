#pragma once

#include <memory>
#include <string_view>

#include "page/field_kind.h"
#include "page/text_state.h"

namespace quillmark {

/// The header or the footer of a document: collected once, then stamped onto every page.
///
/// What differs from page to page is kept as a token and filled in when a page is finished; date
/// and time are filled in when the field is inserted, so they are the same on every page.
class DocHtmlSection {
public:
    DocHtmlSection();
    DocHtmlSection(const DocHtmlSection& other);
    DocHtmlSection& operator=(const DocHtmlSection& other);
    virtual ~DocHtmlSection();

    /// No text, the text state reset, test level 0.
    void clear();
    /// Appends finished HTML.
    void insertText(std::string_view html);
    /// Appends a field. An unknown kind adds nothing.
    void insertField(FieldKind kind);
    void setFont(const FontData& font);
    /// The text state while the section is open; it lives as long as the section.
    [[nodiscard]] DocHtmlTextState* getState() const noexcept;
    /// Non-zero writes date and time as fixed placeholders.
    void setTestLevel(int level);

    /// The section's text with its tokens filled in, only the first one of each kind: a second
    /// page number in a footer stays the token that it is.
    [[nodiscard]] OrxString getDisplayString(long pageNumber, const OrxString& fileName) const;

private:
    static void replace(OrxString& text, std::string_view token, std::string_view value);

    struct Record;
    std::unique_ptr<Record> record_;
};

}  // namespace quillmark
