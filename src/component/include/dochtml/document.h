#ifndef DOCHTML_DOCUMENT_H
#define DOCHTML_DOCUMENT_H

#include "dochtml/identifiers.h"

/* The document interface of the component for C++ hosts, the same on every system. C hosts include
 * dochtml/dochtml_c.h.
 *
 *     const Apartment apartment;                         // dochtml/client.h
 *     const Component component = Component::byName("DocHtml.DocHtml");
 *     const ComPointer<IDocument> document = component.createDocument();
 *     document->create(Text(u"C:\\out\\rep.htm").get());
 */

/// The 42 operations of a document, after the seven inherited functions. The number next to each
/// is its dispatch identifier.
///
/// Every operation returns 0, whatever happens. Texts are only read during the call, and a null
/// text is an empty one. The caller owns an out text and frees it with `SysFreeString`. Only the
/// thread that created an object may call it.
struct IDocument : IDispatch {
    virtual HRESULT STDMETHODCALLTYPE create(BSTR fileName) = 0;                               // 1
    virtual HRESULT STDMETHODCALLTYPE close() = 0;                                             // 2
    virtual HRESULT STDMETHODCALLTYPE insertText(BSTR text) = 0;                               // 3
    virtual HRESULT STDMETHODCALLTYPE insertEndl() = 0;                                        // 4
    virtual HRESULT STDMETHODCALLTYPE insertDiagram(LONG ptr, SHORT width, SHORT height) = 0;  // 5
    virtual HRESULT STDMETHODCALLTYPE insertPageBreak() = 0;                                   // 6
    virtual HRESULT STDMETHODCALLTYPE insertField(SHORT field) = 0;                            // 7
    virtual HRESULT STDMETHODCALLTYPE startHeader() = 0;                                       // 8
    virtual HRESULT STDMETHODCALLTYPE endHeader() = 0;                                         // 9
    virtual HRESULT STDMETHODCALLTYPE startFooter() = 0;                                       // 10
    virtual HRESULT STDMETHODCALLTYPE endFooter() = 0;                                         // 11
    virtual HRESULT STDMETHODCALLTYPE setStyle(BSTR style) = 0;                                // 12
    virtual HRESULT STDMETHODCALLTYPE setFontName(BSTR name) = 0;                              // 13
    virtual HRESULT STDMETHODCALLTYPE setOption(BSTR option, BSTR value) = 0;                  // 14
    virtual HRESULT STDMETHODCALLTYPE trace(SHORT level) = 0;                                  // 15
    virtual HRESULT STDMETHODCALLTYPE getPropPages(BSTR* bstrCLSID) = 0;                       // 16
    virtual HRESULT STDMETHODCALLTYPE start() = 0;                                             // 17
    virtual HRESULT STDMETHODCALLTYPE stop() = 0;                                              // 18
    virtual HRESULT STDMETHODCALLTYPE showLast() = 0;                                          // 19
    virtual HRESULT STDMETHODCALLTYPE setFontSize(SHORT size) = 0;                             // 20
    virtual HRESULT STDMETHODCALLTYPE setFontAttribute(SHORT att, VARIANT_BOOL value) = 0;     // 21
    virtual HRESULT STDMETHODCALLTYPE setTextAlign(SHORT textAlign) = 0;                       // 22
    virtual HRESULT STDMETHODCALLTYPE insertFile(BSTR fileName, SHORT insertAsType) = 0;       // 23
    virtual HRESULT STDMETHODCALLTYPE getDocType(BSTR* docType) = 0;                           // 24
    virtual HRESULT STDMETHODCALLTYPE overrideRegistry(BSTR group, BSTR name, BSTR value,
                                                       SHORT valueType) = 0;                // 25
    virtual HRESULT STDMETHODCALLTYPE insertTOC() = 0;                                      // 26
    virtual HRESULT STDMETHODCALLTYPE startTable() = 0;                                     // 27
    virtual HRESULT STDMETHODCALLTYPE endTable() = 0;                                       // 28
    virtual HRESULT STDMETHODCALLTYPE addCell() = 0;                                        // 29
    virtual HRESULT STDMETHODCALLTYPE addRow() = 0;                                         // 30
    virtual HRESULT STDMETHODCALLTYPE insertMark(LONG ptr, VARIANT_BOOL isPrimary) = 0;     // 31
    virtual HRESULT STDMETHODCALLTYPE startTOCEntry() = 0;                                  // 32
    virtual HRESULT STDMETHODCALLTYPE endTOCEntry() = 0;                                    // 33
    virtual HRESULT STDMETHODCALLTYPE insertImage(BSTR imageFileName, BSTR fileOrUrl) = 0;  // 34
    virtual HRESULT STDMETHODCALLTYPE setOrientation(SHORT docorient) = 0;                  // 35
    virtual HRESULT STDMETHODCALLTYPE setTableRowHeight(LONG points) = 0;                   // 36
    virtual HRESULT STDMETHODCALLTYPE insertTag(BSTR tagName) = 0;                          // 37
    virtual HRESULT STDMETHODCALLTYPE insertXref(BSTR text, BSTR tagName) = 0;              // 38
    virtual HRESULT STDMETHODCALLTYPE startFile(BSTR fileName) = 0;                         // 39
    virtual HRESULT STDMETHODCALLTYPE insertLocate() = 0;                                   // 40
    virtual HRESULT STDMETHODCALLTYPE pushDirectory(BSTR directoryName) = 0;                // 41
    virtual HRESULT STDMETHODCALLTYPE popDirectory() = 0;                                   // 42

protected:
    ~IDocument() = default;
};

#endif
