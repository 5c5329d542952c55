#include "component/object/document_object.h"

#include <string>

#include "component/module/boundary.h"
#include "component/object/late_binding.h"
#include "component/object/type_information.h"
#include "dochtml/text.h"

namespace quillmark {
namespace {

bool isTrue(VARIANT_BOOL value) noexcept {
    return value != VARIANT_FALSE;
}

/// The address of an identifier that the host passed. The parameter is a reference only in C++, so
/// the host may have passed null. This keeps the compiler from assuming the opposite.
const IID* passedIdentifier(const IID* identifier) noexcept {
    const IID* const volatile passed = identifier;
    return passed;
}

/// Runs an operation with an out text. The operation runs even when `text` is null.
template <typename Body>
HRESULT runOutOperation(BSTR* out, Body&& body) noexcept {
    if (out != nullptr) {
        *out = nullptr;
    }
    return runOperation([&] {
        std::u16string text;
        body(text);
        if (out != nullptr) {
            *out = Text(text).release();
        }
    });
}

}  // namespace

HRESULT DocumentObject::make(DocumentMaker maker, IUnknown* outer, REFIID iid, void** object) {
    return runGuarded([&] { return createAggregable<DocumentObject>(outer, iid, object, maker); });
}

IUnknown* DocumentObject::findInterface(REFIID iid) noexcept {
    const bool known = IsEqualIID(iid, IID_IDispatch) || IsEqualIID(iid, IID_IDocument);
    return known ? this : nullptr;
}

HRESULT DocumentObject::GetTypeInfoCount(UINT* count) {
    if (count == nullptr) {
        return E_POINTER;
    }
    *count = documentTypeInfoCount();
    return S_OK;
}

HRESULT DocumentObject::GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) {
    if (info == nullptr) {
        return E_POINTER;
    }
    *info = nullptr;
    if (index >= documentTypeInfoCount()) {
        return DISP_E_BADINDEX;
    }
    return runGuarded([&] { return documentTypeInfo(locale, info); });
}

HRESULT DocumentObject::GetIDsOfNames(REFIID reserved, LPOLESTR* names, UINT count, LCID /*locale*/,
                                      DISPID* ids) {
    const IID* const reservedId = passedIdentifier(&reserved);
    return runGuarded([&] { return findDispatchIds(reservedId, names, count, ids); });
}

HRESULT DocumentObject::Invoke(DISPID id, REFIID reserved, LCID locale, WORD flags,
                               DISPPARAMS* parameters, VARIANT* result, EXCEPINFO* /*exception*/,
                               UINT* badArgument) {
    const IID* const reservedId = passedIdentifier(&reserved);
    return runGuarded([&] {
        const LateCall call{id, reservedId, locale, flags, parameters, result, badArgument};
        return invokeLateBound(*document_, call);
    });
}

HRESULT DocumentObject::create(BSTR fileName) {
    return runOperation([&] { document_->create(Text::viewOf(fileName)); });
}

HRESULT DocumentObject::close() {
    return runOperation([&] { document_->close(); });
}

HRESULT DocumentObject::insertText(BSTR text) {
    return runOperation([&] { document_->insertText(Text::viewOf(text)); });
}

HRESULT DocumentObject::insertEndl() {
    return runOperation([&] { document_->insertEndl(); });
}

HRESULT DocumentObject::insertDiagram(LONG ptr, SHORT width, SHORT height) {
    return runOperation([&] { document_->insertDiagram(ptr, width, height); });
}

HRESULT DocumentObject::insertPageBreak() {
    return runOperation([&] { document_->insertPageBreak(); });
}

HRESULT DocumentObject::insertField(SHORT field) {
    return runOperation([&] { document_->insertField(field); });
}

HRESULT DocumentObject::startHeader() {
    return runOperation([&] { document_->startHeader(); });
}

HRESULT DocumentObject::endHeader() {
    return runOperation([&] { document_->endHeader(); });
}

HRESULT DocumentObject::startFooter() {
    return runOperation([&] { document_->startFooter(); });
}

HRESULT DocumentObject::endFooter() {
    return runOperation([&] { document_->endFooter(); });
}

HRESULT DocumentObject::setStyle(BSTR style) {
    return runOperation([&] { document_->setStyle(Text::viewOf(style)); });
}

HRESULT DocumentObject::setFontName(BSTR name) {
    return runOperation([&] { document_->setFontName(Text::viewOf(name)); });
}

HRESULT DocumentObject::setOption(BSTR option, BSTR value) {
    return runOperation([&] { document_->setOption(Text::viewOf(option), Text::viewOf(value)); });
}

HRESULT DocumentObject::trace(SHORT level) {
    return runOperation([&] { document_->trace(level); });
}

HRESULT DocumentObject::getPropPages(BSTR* bstrCLSID) {
    return runOutOperation(bstrCLSID, [&](std::u16string& text) { document_->getPropPages(text); });
}

HRESULT DocumentObject::start() {
    return runOperation([&] { document_->start(); });
}

HRESULT DocumentObject::stop() {
    return runOperation([&] { document_->stop(); });
}

HRESULT DocumentObject::showLast() {
    return runOperation([&] { document_->showLast(); });
}

HRESULT DocumentObject::setFontSize(SHORT size) {
    return runOperation([&] { document_->setFontSize(size); });
}

HRESULT DocumentObject::setFontAttribute(SHORT att, VARIANT_BOOL value) {
    return runOperation([&] { document_->setFontAttribute(att, isTrue(value)); });
}

HRESULT DocumentObject::setTextAlign(SHORT textAlign) {
    return runOperation([&] { document_->setTextAlign(textAlign); });
}

HRESULT DocumentObject::insertFile(BSTR fileName, SHORT insertAsType) {
    return runOperation([&] { document_->insertFile(Text::viewOf(fileName), insertAsType); });
}

HRESULT DocumentObject::getDocType(BSTR* docType) {
    return runOutOperation(docType, [&](std::u16string& text) { document_->getDocType(text); });
}

HRESULT DocumentObject::overrideRegistry(BSTR group, BSTR name, BSTR value, SHORT valueType) {
    return runOperation([&] {
        document_->overrideRegistry(Text::viewOf(group), Text::viewOf(name), Text::viewOf(value),
                                    valueType);
    });
}

HRESULT DocumentObject::insertTOC() {
    return runOperation([&] { document_->insertTOC(); });
}

HRESULT DocumentObject::startTable() {
    return runOperation([&] { document_->startTable(); });
}

HRESULT DocumentObject::endTable() {
    return runOperation([&] { document_->endTable(); });
}

HRESULT DocumentObject::addCell() {
    return runOperation([&] { document_->addCell(); });
}

HRESULT DocumentObject::addRow() {
    return runOperation([&] { document_->addRow(); });
}

HRESULT DocumentObject::insertMark(LONG ptr, VARIANT_BOOL isPrimary) {
    return runOperation([&] { document_->insertMark(ptr, isTrue(isPrimary)); });
}

HRESULT DocumentObject::startTOCEntry() {
    return runOperation([&] { document_->startTOCEntry(); });
}

HRESULT DocumentObject::endTOCEntry() {
    return runOperation([&] { document_->endTOCEntry(); });
}

HRESULT DocumentObject::insertImage(BSTR imageFileName, BSTR fileOrUrl) {
    return runOperation(
        [&] { document_->insertImage(Text::viewOf(imageFileName), Text::viewOf(fileOrUrl)); });
}

HRESULT DocumentObject::setOrientation(SHORT docorient) {
    return runOperation([&] { document_->setOrientation(docorient); });
}

HRESULT DocumentObject::setTableRowHeight(LONG points) {
    return runOperation([&] { document_->setTableRowHeight(points); });
}

HRESULT DocumentObject::insertTag(BSTR tagName) {
    return runOperation([&] { document_->insertTag(Text::viewOf(tagName)); });
}

HRESULT DocumentObject::insertXref(BSTR text, BSTR tagName) {
    return runOperation([&] { document_->insertXref(Text::viewOf(text), Text::viewOf(tagName)); });
}

HRESULT DocumentObject::startFile(BSTR fileName) {
    return runOperation([&] { document_->startFile(Text::viewOf(fileName)); });
}

HRESULT DocumentObject::insertLocate() {
    return runOperation([&] { document_->insertLocate(); });
}

HRESULT DocumentObject::pushDirectory(BSTR directoryName) {
    return runOperation([&] { document_->pushDirectory(Text::viewOf(directoryName)); });
}

HRESULT DocumentObject::popDirectory() {
    return runOperation([&] { document_->popDirectory(); });
}

}  // namespace quillmark
