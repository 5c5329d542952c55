#include "dochtml/dochtml_c.h"

static void with_text(DochtmlDocument* document,
                      HRESULT(STDMETHODCALLTYPE* operation)(DochtmlDocument* self, BSTR text),
                      const char* utf8) {
    BSTR text = dochtml_text_from_utf8(utf8);
    operation(document, text);
    SysFreeString(text);
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

int main(int count, char** arguments) {
    DochtmlDocument* document = NULL;
    dochtml_initialize();
    if (count == 3 && SUCCEEDED(dochtml_create_document("DocHtml.DocHtml", &document))) {
        const DochtmlDocumentTable* call = document->table;
        use_style_sheet(document, arguments[2]);
        with_text(document, call->create, arguments[1]);
        with_text(document, call->setStyle, "Heading 1");
        with_text(document, call->insertText, "Hello");
        call->insertEndl(document);
        call->close(document);
        call->Release(document);
    }
    dochtml_uninitialize();
    return 0;
}
