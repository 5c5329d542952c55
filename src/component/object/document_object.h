#pragma once

#include <memory>

#include "component/module/module_state.h"
#include "component/object/aggregable_object.h"
#include "dochtml/document.h"
#include "driver/boundary/i_document.h"

namespace quillmark {

/// The driver's `IDocument`. Inside `DocumentObject` that name means the host's interface.
using DriverDocument = IDocument;
/// Creates the driver of a document object. May throw.
using DocumentMaker = std::unique_ptr<DriverDocument> (*)();

/// A document as hosts see it. Hosts call its 42 operations through the function table, by dispatch
/// identifier or by name, and it passes them to one driver. It lets no exception through.
// NOLINTNEXTLINE(cppcoreguidelines-virtual-class-destructor): its last release deletes it.
class DocumentObject final : public AggregableObject<::IDocument> {
public:
    /// Creates an object, aggregated into `outer` unless that is null, and returns the requested
    /// interface in `object`.
    static HRESULT make(DocumentMaker maker, IUnknown* outer, REFIID iid, void** object);

    DocumentObject(IUnknown* outer, DocumentMaker maker)
        : AggregableObject(outer), document_(maker()) {}

    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override;
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) override;
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID reserved, LPOLESTR* names, UINT count,
                                            LCID locale, DISPID* ids) override;
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID reserved, LCID locale, WORD flags,
                                     DISPPARAMS* parameters, VARIANT* result, EXCEPINFO* exception,
                                     UINT* badArgument) override;

    HRESULT STDMETHODCALLTYPE create(BSTR fileName) override;
    HRESULT STDMETHODCALLTYPE close() override;
    HRESULT STDMETHODCALLTYPE insertText(BSTR text) override;
    HRESULT STDMETHODCALLTYPE insertEndl() override;
    HRESULT STDMETHODCALLTYPE insertDiagram(LONG ptr, SHORT width, SHORT height) override;
    HRESULT STDMETHODCALLTYPE insertPageBreak() override;
    HRESULT STDMETHODCALLTYPE insertField(SHORT field) override;
    HRESULT STDMETHODCALLTYPE startHeader() override;
    HRESULT STDMETHODCALLTYPE endHeader() override;
    HRESULT STDMETHODCALLTYPE startFooter() override;
    HRESULT STDMETHODCALLTYPE endFooter() override;
    HRESULT STDMETHODCALLTYPE setStyle(BSTR style) override;
    HRESULT STDMETHODCALLTYPE setFontName(BSTR name) override;
    HRESULT STDMETHODCALLTYPE setOption(BSTR option, BSTR value) override;
    HRESULT STDMETHODCALLTYPE trace(SHORT level) override;
    HRESULT STDMETHODCALLTYPE getPropPages(BSTR* bstrCLSID) override;
    HRESULT STDMETHODCALLTYPE start() override;
    HRESULT STDMETHODCALLTYPE stop() override;
    HRESULT STDMETHODCALLTYPE showLast() override;
    HRESULT STDMETHODCALLTYPE setFontSize(SHORT size) override;
    HRESULT STDMETHODCALLTYPE setFontAttribute(SHORT att, VARIANT_BOOL value) override;
    HRESULT STDMETHODCALLTYPE setTextAlign(SHORT textAlign) override;
    HRESULT STDMETHODCALLTYPE insertFile(BSTR fileName, SHORT insertAsType) override;
    HRESULT STDMETHODCALLTYPE getDocType(BSTR* docType) override;
    HRESULT STDMETHODCALLTYPE overrideRegistry(BSTR group, BSTR name, BSTR value,
                                               SHORT valueType) override;
    HRESULT STDMETHODCALLTYPE insertTOC() override;
    HRESULT STDMETHODCALLTYPE startTable() override;
    HRESULT STDMETHODCALLTYPE endTable() override;
    HRESULT STDMETHODCALLTYPE addCell() override;
    HRESULT STDMETHODCALLTYPE addRow() override;
    HRESULT STDMETHODCALLTYPE insertMark(LONG ptr, VARIANT_BOOL isPrimary) override;
    HRESULT STDMETHODCALLTYPE startTOCEntry() override;
    HRESULT STDMETHODCALLTYPE endTOCEntry() override;
    HRESULT STDMETHODCALLTYPE insertImage(BSTR imageFileName, BSTR fileOrUrl) override;
    HRESULT STDMETHODCALLTYPE setOrientation(SHORT docorient) override;
    HRESULT STDMETHODCALLTYPE setTableRowHeight(LONG points) override;
    HRESULT STDMETHODCALLTYPE insertTag(BSTR tagName) override;
    HRESULT STDMETHODCALLTYPE insertXref(BSTR text, BSTR tagName) override;
    HRESULT STDMETHODCALLTYPE startFile(BSTR fileName) override;
    HRESULT STDMETHODCALLTYPE insertLocate() override;
    HRESULT STDMETHODCALLTYPE pushDirectory(BSTR directoryName) override;
    HRESULT STDMETHODCALLTYPE popDirectory() override;

protected:
    ~DocumentObject() override = default;
    [[nodiscard]] IUnknown* findInterface(REFIID iid) noexcept override;

private:
    /// Declared before the driver, so that the driver may use services until it is destroyed.
    ServiceUser user_;
    std::unique_ptr<DriverDocument> document_;
};

}  // namespace quillmark
