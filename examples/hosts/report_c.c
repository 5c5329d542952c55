/* A report generator in small, in plain C: makes a document by the component's name and writes a
 * report of two pages.
 *
 *     report_c OUTPUT-FILE STYLE-SHEET [COMPONENT]
 *
 * COMPONENT is a program identifier, "DocHtml.DocHtml" when left out, or the file of a library.
 */

#include <stdio.h>
#include <string.h>

#include "dochtml/dochtml_c.h"

typedef HRESULT(STDMETHODCALLTYPE* TextOperation)(DochtmlDocument* self, BSTR text);
typedef HRESULT(STDMETHODCALLTYPE* TwoTextOperation)(DochtmlDocument* self, BSTR one, BSTR two);

/* Calls an operation that takes a text. */
static void with_text(DochtmlDocument* document, TextOperation operation, const char* utf8) {
    BSTR text = dochtml_text_from_utf8(utf8);
    operation(document, text);
    SysFreeString(text);
}

static void with_texts(DochtmlDocument* document, TwoTextOperation operation, const char* one,
                       const char* two) {
    BSTR first = dochtml_text_from_utf8(one);
    BSTR second = dochtml_text_from_utf8(two);
    operation(document, first, second);
    SysFreeString(first);
    SysFreeString(second);
}

static void use_style_sheet(DochtmlDocument* document, const char* file) {
    BSTR group = dochtml_text_from_utf8("Html");
    BSTR name = dochtml_text_from_utf8("StyleSheet");
    BSTR value = dochtml_text_from_utf8(file);
    document->table->overrideRegistry(document, group, name, value, 0);
    SysFreeString(group);
    SysFreeString(name);
    SysFreeString(value);
}

static void write_row(DochtmlDocument* document, const char* name, const char* value) {
    const DochtmlDocumentTable* call = document->table;
    call->addRow(document);
    call->addCell(document);
    with_text(document, call->insertText, name);
    call->addCell(document);
    with_text(document, call->insertText, value);
}

static void write_report(DochtmlDocument* document, const char* file, const char* style_sheet) {
    const DochtmlDocumentTable* call = document->table;
    use_style_sheet(document, style_sheet);
    with_text(document, call->create, file);
    with_texts(document, call->setOption, "title", "A small report");
    call->startFooter(document);
    with_text(document, call->insertText, "Page ");
    call->insertField(document, 4);
    call->endFooter(document);

    with_text(document, call->setStyle, "Heading 1");
    with_text(document, call->insertText, "Results");
    call->insertEndl(document);
    with_text(document, call->setStyle, "Normal");
    with_text(document, call->insertText, "The figures are in ");
    with_texts(document, call->insertXref, "the table", "figures");
    with_text(document, call->insertText, ", those of Z\xC3\xBCrich too.");
    call->insertEndl(document);

    call->insertPageBreak(document);
    with_text(document, call->setStyle, "Heading 1");
    with_text(document, call->insertTag, "figures");
    with_text(document, call->insertText, "Figures");
    call->insertEndl(document);
    with_text(document, call->setStyle, "Normal");
    call->startTable(document);
    write_row(document, "North", "12");
    write_row(document, "South", "9");
    call->endTable(document);
    call->setFontAttribute(document, 1, VARIANT_TRUE);
    with_text(document, call->insertText, "That is all.");
    call->close(document);
}

static HRESULT make_document(const char* component, DochtmlDocument** document) {
    return strpbrk(component, "/\\") != NULL ? dochtml_create_document_from(component, document)
                                             : dochtml_create_document(component, document);
}

int main(int argc, char** argv) {
    DochtmlDocument* document = NULL;
    HRESULT result;
    if (argc < 3) {
        fputs("Usage: report_c OUTPUT-FILE STYLE-SHEET [COMPONENT]\n", stderr);
        return 2;
    }
    dochtml_initialize();
    result = make_document(argc > 3 ? argv[3] : "DocHtml.DocHtml", &document);
    if (SUCCEEDED(result)) {
        write_report(document, argv[1], argv[2]);
        document->table->Release(document);
    } else {
        fprintf(stderr, "report_c: no document, result 0x%08X\n", (unsigned)result);
    }
    dochtml_uninitialize();
    return SUCCEEDED(result) ? 0 : 1;
}
