#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

#include "foundation/orx_object.h"
#include "foundation/orx_string.h"
#include "page/html_mark_position.h"
#include "platform/trace.h"

namespace quillmark {

/// One HTML file in the making: filled in memory and written in one go when it is closed, so
/// that its marks can be filled in late.
///
///     DocHtmlPage page;
///     page.setFileName("C:\\out\\rep_cnt.htm");
///     page.setTitle("Report");
///     page.append("<BODY>\n");
///     page.close();                       // written, and the page is empty again
///
/// A page without a line of body text is empty and writes no file. Failures of the disk go to
/// the exception log and end the writing of this page only.
class DocHtmlPage : public OrxObject {
public:
    DocHtmlPage();
    DocHtmlPage(const DocHtmlPage& other);
    DocHtmlPage& operator=(const DocHtmlPage& other);
    /// Closes the page first.
    ~DocHtmlPage() override;

    /// Text right after the head, in front of the lines.
    void appendTop(std::string_view text);
    /// Text behind the last line.
    void appendTail(std::string_view text);
    /// Text at the end of the HEAD element.
    void appendHead(std::string_view text);
    /// Body text: at the insertion point when one is set, else at the end, where a text with a
    /// line feed anywhere in it ends the line once.
    void append(std::string_view text);

    void setFileName(const OrxString& name);
    [[nodiscard]] const OrxString& getFileName() const noexcept;
    /// The title as it stands in the head; nothing in it is escaped.
    void setTitle(const OrxString& title);
    /// The HREF of the style-sheet link; empty for none.
    void setStyleSheet(const OrxString& href);
    void setTrace(const Trace& trace);

    [[nodiscard]] bool isEmpty() const noexcept;
    [[nodiscard]] std::int32_t getLineCount() const noexcept;
    [[nodiscard]] bool differs(const DocHtmlPage& other) const noexcept;

    /// Link text from directory `base` to `target`; an empty base is the default base directory.
    [[nodiscard]] static OrxString relativeLink(const OrxString& target, const OrxString& base);

    /// The page's own number of a mark's name. Told with the name again it spares the page a
    /// search; a wrong number does no harm.
    using MarkNameId = std::uint32_t;
    static constexpr MarkNameId unknownName = 0xFFFFFFFF;

    /// Marks: named places that can still be filled.
    MarkNameId addMark(std::string_view name, std::string_view markup,
                       MarkNameId hint = unknownName);
    [[nodiscard]] bool hasMarks() const noexcept;
    [[nodiscard]] std::size_t getMarkCount() const noexcept;
    [[nodiscard]] bool hasMark(std::string_view name) const;
    /// Drops every mark of that name without filling it.
    void removeMarks(std::string_view name);
    /// Fills every mark of that name, in the order of their making, and drops them: an empty
    /// markup becomes HREF="reference"; in a markup that holds the name, the name's first
    /// occurrence, wherever it stands, becomes that; any other markup is put as it is.
    void resolveMarks(std::string_view name, std::string_view reference,
                      MarkNameId hint = unknownName);
    /// Lets `append` write at the first mark of that name. False when there is none.
    bool setInsertPoint(std::string_view name);
    void clearInsertPoint() noexcept;
    /// Makes room for that many bytes of body text at once, for who knows how much is coming.
    void reserve(std::size_t bytes);
    /// Bytes of the body written so far, what was put in at marks not counted.
    [[nodiscard]] std::size_t bodySize() const noexcept;
    /// Gives back memory held for growth; for a page that is held back until its marks are filled.
    void compact();
    /// The open marks in name order, equal names in the order of their making.
    [[nodiscard]] std::vector<std::pair<OrxString, htmlMarkPosition>> marks() const;

    /// Writes the file and tells the unresolved references in the trace, then empties the page.
    /// The style-sheet link stays. An empty page is left as it is.
    void close();

private:
    struct Record;
    std::unique_ptr<Record> record_;
};

}  // namespace quillmark
