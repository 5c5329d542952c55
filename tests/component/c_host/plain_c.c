#include "plain_c.h"

static HRESULT find(DochtmlDocument* document, const IID* iid) {
    void* found = NULL;
    const HRESULT result = document->table->QueryInterface(document, iid, &found);
    if (SUCCEEDED(result)) {
        document->table->Release((DochtmlDocument*)found);
    }
    return result;
}

HRESULT plain_c_call_by_name(DochtmlDocument* document) {
    BSTR name = dochtml_text_from_utf8("popDirectory");
    LPOLESTR names[1];
    DISPID id = DISPID_UNKNOWN;
    DISPPARAMS none = {NULL, NULL, 0, 0};
    HRESULT result = find(document, &IID_IDispatch);
    names[0] = name;
    if (result == S_OK) {
        result = find(document, &IID_IDocument);
    }
    if (result == S_OK) {
        result = document->table->GetIDsOfNames(document, &IID_NULL, names, 1, 0, &id);
    }
    if (result == S_OK) {
        result = document->table->Invoke(document, id, &IID_NULL, 0, DISPATCH_METHOD, &none, NULL,
                                         NULL, NULL);
    }
    SysFreeString(name);
    return result;
}

HRESULT plain_c_find_services(DochtmlHostServices* services) {
    void* found = NULL;
    const HRESULT result = services->table->QueryInterface(services, &IID_IHostServices, &found);
    if (SUCCEEDED(result)) {
        services->table->Release((DochtmlHostServices*)found);
    }
    return result;
}
