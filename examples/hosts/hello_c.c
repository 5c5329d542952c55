#include <stdio.h>

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

static void say_hello(DochtmlDocument* document, const char* file, const char* style_sheet) {
    const DochtmlDocumentTable* call = document->table;
    use_style_sheet(document, style_sheet);
    with_text(document, call->create, file);
    with_text(document, call->setStyle, "Heading 1");
    with_text(document, call->insertText, "Hello");
    call->insertEndl(document);
    call->close(document);
}

int main(int argc, char** argv) {
    DochtmlDocument* document = NULL;
    HRESULT result;
    if (argc != 3) {
        fputs("Usage: hello_c OUTPUT-FILE STYLE-SHEET\n", stderr);
        return 2;
    }
    dochtml_initialize();
    result = dochtml_create_document("DocHtml.DocHtml", &document);
    if (SUCCEEDED(result)) {
        say_hello(document, argv[1], argv[2]);
        document->table->Release(document);
    } else {
        fprintf(stderr, "hello_c: no document, result 0x%08X\n", (unsigned)result);
    }
    dochtml_uninitialize();
    return SUCCEEDED(result) ? 0 : 1;
}
