#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace quillmark {

/// A host's UTF-16 text. It may hold any code units, including zeros and lone surrogates. A null
/// string of the host arrives as an empty text.
using WideText = std::u16string_view;

/// The platform's 32-bit result code. Every operation answers `resultOk`.
using DocResult = std::int32_t;
inline constexpr DocResult resultOk = 0;

/// The boundary between the report generator and a document driver: 42 operations, declared in
/// the order of the operation table, so that the n-th one has dispatch identifier n.
///
/// A host calls them from one thread, in document order. docs/operations.md describes each
/// operation: its arguments, which operation it pairs with, and what it writes. To call operations
/// by name or identifier, see `driver/boundary/operation_table.h`.
class IDocument {
public:
    IDocument() = default;
    IDocument(const IDocument&) = delete;
    IDocument& operator=(const IDocument&) = delete;
    virtual ~IDocument() = default;

    virtual DocResult create(WideText fileName) = 0;  // 1
    virtual DocResult close() = 0;                    // 2
    virtual DocResult insertText(WideText text) = 0;  // 3
    virtual DocResult insertEndl() = 0;               // 4
    virtual DocResult insertDiagram(std::int32_t ptr, std::int16_t width,
                                    std::int16_t height) = 0;                        // 5
    virtual DocResult insertPageBreak() = 0;                                         // 6
    virtual DocResult insertField(std::int16_t field) = 0;                           // 7
    virtual DocResult startHeader() = 0;                                             // 8
    virtual DocResult endHeader() = 0;                                               // 9
    virtual DocResult startFooter() = 0;                                             // 10
    virtual DocResult endFooter() = 0;                                               // 11
    virtual DocResult setStyle(WideText style) = 0;                                  // 12
    virtual DocResult setFontName(WideText name) = 0;                                // 13
    virtual DocResult setOption(WideText option, WideText value) = 0;                // 14
    virtual DocResult trace(std::int16_t level) = 0;                                 // 15
    virtual DocResult getPropPages(std::u16string& bstrCLSID) = 0;                   // 16
    virtual DocResult start() = 0;                                                   // 17
    virtual DocResult stop() = 0;                                                    // 18
    virtual DocResult showLast() = 0;                                                // 19
    virtual DocResult setFontSize(std::int16_t size) = 0;                            // 20
    virtual DocResult setFontAttribute(std::int16_t att, bool value) = 0;            // 21
    virtual DocResult setTextAlign(std::int16_t textAlign) = 0;                      // 22
    virtual DocResult insertFile(WideText fileName, std::int16_t insertAsType) = 0;  // 23
    virtual DocResult getDocType(std::u16string& docType) = 0;                       // 24
    virtual DocResult overrideRegistry(WideText group, WideText name, WideText value,
                                       std::int16_t valueType) = 0;                 // 25
    virtual DocResult insertTOC() = 0;                                              // 26
    virtual DocResult startTable() = 0;                                             // 27
    virtual DocResult endTable() = 0;                                               // 28
    virtual DocResult addCell() = 0;                                                // 29
    virtual DocResult addRow() = 0;                                                 // 30
    virtual DocResult insertMark(std::int32_t ptr, bool isPrimary) = 0;             // 31
    virtual DocResult startTOCEntry() = 0;                                          // 32
    virtual DocResult endTOCEntry() = 0;                                            // 33
    virtual DocResult insertImage(WideText imageFileName, WideText fileOrUrl) = 0;  // 34
    virtual DocResult setOrientation(std::int16_t docorient) = 0;                   // 35
    virtual DocResult setTableRowHeight(std::int32_t points) = 0;                   // 36
    virtual DocResult insertTag(WideText tagName) = 0;                              // 37
    virtual DocResult insertXref(WideText text, WideText tagName) = 0;              // 38
    virtual DocResult startFile(WideText fileName) = 0;                             // 39
    virtual DocResult insertLocate() = 0;                                           // 40
    virtual DocResult pushDirectory(WideText directoryName) = 0;                    // 41
    virtual DocResult popDirectory() = 0;                                           // 42
};

}  // namespace quillmark
