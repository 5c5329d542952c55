#pragma once

#include <memory>
#include <string_view>

#include "driver/boundary/i_document.h"
#include "foundation/orx_string.h"

namespace quillmark {

struct DocHtmlImpl;

/// The HTML driver. It turns a stream of document operations into a set of HTML pages and a table
/// of contents. An object writes one document at a time. A second `create` starts another document;
/// the page number, the title and the text state carry over.
///
///     DocHtml document;
///     document.create(u"C:\\out\\rep.htm");
///     document.setStyle(u"Heading 1");
///     document.insertText(u"Introduction");
///     document.close();                       // the pages are on the disk
///
/// Every operation returns `resultOk`. Failures are reported in the call trace and in the exception
/// log. So is an operation that runs out of memory: its output is lost, at most, and the document
/// goes on; after such a `create` the calls up to the next one write nothing. Two failures throw
/// `OrxException`: `create` when the style sheet is missing, and `close` when the tree data file
/// cannot be written. Use an object from one thread only. The destructor closes a document that is
/// still open; its last page then has no header and no footer.
class DocHtml : public IDocument {
public:
    DocHtml();
    DocHtml(const DocHtml&) = delete;
    DocHtml& operator=(const DocHtml&) = delete;
    ~DocHtml() override;

    DocResult create(WideText fileName) override;
    DocResult close() override;
    DocResult insertText(WideText text) override;
    DocResult insertEndl() override;
    DocResult insertDiagram(std::int32_t ptr, std::int16_t width, std::int16_t height) override;
    DocResult insertPageBreak() override;
    DocResult insertField(std::int16_t field) override;
    DocResult startHeader() override;
    DocResult endHeader() override;
    DocResult startFooter() override;
    DocResult endFooter() override;
    DocResult setStyle(WideText style) override;
    DocResult setFontName(WideText name) override;
    DocResult setOption(WideText option, WideText value) override;
    DocResult trace(std::int16_t level) override;
    DocResult getPropPages(std::u16string& bstrCLSID) override;
    DocResult start() override;
    DocResult stop() override;
    DocResult showLast() override;
    DocResult setFontSize(std::int16_t size) override;
    DocResult setFontAttribute(std::int16_t att, bool value) override;
    DocResult setTextAlign(std::int16_t textAlign) override;
    DocResult insertFile(WideText fileName, std::int16_t insertAsType) override;
    DocResult getDocType(std::u16string& docType) override;
    DocResult overrideRegistry(WideText group, WideText name, WideText value,
                               std::int16_t valueType) override;
    DocResult insertTOC() override;
    DocResult startTable() override;
    DocResult endTable() override;
    DocResult addCell() override;
    DocResult addRow() override;
    DocResult insertMark(std::int32_t ptr, bool isPrimary) override;
    DocResult startTOCEntry() override;
    DocResult endTOCEntry() override;
    DocResult insertImage(WideText imageFileName, WideText fileOrUrl) override;
    DocResult setOrientation(std::int16_t docorient) override;
    DocResult setTableRowHeight(std::int32_t points) override;
    DocResult insertTag(WideText tagName) override;
    DocResult insertXref(WideText text, WideText tagName) override;
    DocResult startFile(WideText fileName) override;
    DocResult insertLocate() override;
    DocResult pushDirectory(WideText directoryName) override;
    DocResult popDirectory() override;

private:
    /// Reads the encoding from the settings, and converts the texts that stay from an earlier
    /// document.
    void takeEncoding();
    void startDocument(const OrxString& name);
    void enterDirectory(const OrxString& directoryName);
    void insertTextCall(std::string_view text);
    void insertXrefCall(std::string_view text, std::string_view tagName);
    void endPage(bool last);
    void startNavigator();
    void writeContents();

    /// Start the contents applet from its launch file. False for a Java before version 7.
    bool useJnlp_ = true;
    OrxString appletJar_;
    OrxString appletArchive_{"toc2.jar"};
    OrxString appletJnlp_{"toc2.jnlp"};
    std::unique_ptr<DocHtmlImpl> impl_;
};

}  // namespace quillmark
