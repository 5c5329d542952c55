#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

#include "foundation/orx_object.h"
#include "foundation/orx_string.h"
#include "page/marks/html_mark_position.h"
#include "page/page_reader.h"
#include "platform/trace.h"

namespace quillmark {

/// An HTML page that is built in memory and written to its file when it is closed. Marks are named
/// places in its text that can be filled until then.
///
///     DocHtmlPage page;
///     page.setFileName("C:\\out\\rep_cnt.htm");
///     page.setTitle("Report");
///     page.append("<BODY>\n");
///     page.close();                       // writes the file and empties the page
///
/// A page without body text is empty and writes no file. A failure to write goes to the exception
/// log. The page is empty afterwards, and the rest of the document is not affected.
class DocHtmlPage : public OrxObject {
public:
    DocHtmlPage();
    DocHtmlPage(const DocHtmlPage& other);
    DocHtmlPage& operator=(const DocHtmlPage& other);
    /// Closes the page first.
    ~DocHtmlPage() override;

    /// Appends text that goes after the head, before the body text.
    void appendTop(std::string_view text);
    /// Appends text that goes after the body text.
    void appendTail(std::string_view text);
    /// Appends text that goes to the end of the HEAD element.
    void appendHead(std::string_view text);
    /// Adds body text, at the insertion point if one is set, otherwise at the end. At the end, a
    /// text with line feeds, however many and wherever they are, ends one line.
    void append(std::string_view text);

    void setFileName(const OrxString& name);
    [[nodiscard]] const OrxString& getFileName() const noexcept;
    /// Sets the text of the TITLE element. It is not escaped.
    void setTitle(const OrxString& title);
    /// Sets the HREF of the style-sheet link. Empty for no link.
    void setStyleSheet(const OrxString& href);
    void setTrace(const Trace& trace);
    /// Lets `reader` read the page, under that number, once it is written.
    void setReader(std::shared_ptr<PageReader> reader, std::uint32_t number);

    [[nodiscard]] bool isEmpty() const noexcept;
    [[nodiscard]] std::int32_t getLineCount() const noexcept;
    [[nodiscard]] bool differs(const DocHtmlPage& other) const noexcept;

    /// The link from directory `base` to `target`, see `links::relative`.
    [[nodiscard]] static OrxString relativeLink(const OrxString& target, const OrxString& base);

    /// The page's id of a mark's name. Pass it back with the name to skip the lookup. A stale id is
    /// ignored.
    using MarkNameId = std::uint32_t;
    static constexpr MarkNameId unknownName = 0xFFFFFFFF;

    /// Places a mark at the end of the body text. Several marks may have the same name. `markup` is
    /// what `resolveMarks` will insert, see there. Returns the id of the name.
    MarkNameId addMark(std::string_view name, std::string_view markup,
                       MarkNameId hint = unknownName);
    /// Whether there are marks that are neither filled nor removed, and how many.
    [[nodiscard]] bool hasMarks() const noexcept;
    [[nodiscard]] std::size_t getMarkCount() const noexcept;
    /// Removes every mark of that name without filling it.
    void removeMarks(std::string_view name);
    /// Fills every mark of that name, in the order of their creation, and removes them. An empty
    /// markup becomes HREF="reference". In a markup that contains the name, HREF="reference"
    /// replaces the first occurrence of the name, wherever it is. Any other markup is inserted as
    /// it is.
    void resolveMarks(std::string_view name, std::string_view reference,
                      MarkNameId hint = unknownName);
    /// Makes `append` insert at the first mark of that name. False if there is none.
    bool setInsertPoint(std::string_view name);
    void clearInsertPoint() noexcept;
    /// Reserves memory for that many bytes of body text.
    void reserve(std::size_t bytes);
    /// The number of bytes of body text, without what was inserted at marks.
    [[nodiscard]] std::size_t bodySize() const noexcept;
    /// Releases memory reserved for growth. For a page that is held back until its marks are
    /// filled.
    void compact();
    /// The open marks in the order of their names, equal names in the order of their creation.
    [[nodiscard]] std::vector<std::pair<OrxString, htmlMarkPosition>> marks() const;

    /// Writes the file, reports unresolved references to the trace, and empties the page except for
    /// its style-sheet link. Does nothing for an empty page.
    void close();

private:
    struct Record;
    std::unique_ptr<Record> record_;
};

}  // namespace quillmark
