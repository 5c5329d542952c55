#ifndef DOCHTML_DOCHTML_C_H
#define DOCHTML_DOCHTML_C_H

/* The component for hosts in plain C (C11 or later): a document is an opaque object with a table of
 * functions, each taking the object first.
 *
 *     DochtmlDocument* document = NULL;
 *     BSTR name = SysAllocString(OLESTR("C:\\out\\rep.htm"));
 *     dochtml_initialize();
 *     if (SUCCEEDED(dochtml_create_document("DocHtml.DocHtml", &document))) {
 *         document->table->create(document, name);
 *         document->table->close(document);
 *         document->table->Release(document);
 *     }
 *     SysFreeString(name);
 *     dochtml_uninitialize();
 *
 * The tables are the same ones that C++ hosts see as interfaces. dochtml/document.h says what all
 * operations have in common, and dochtml/host_services.h describes the services of a host.
 */

#include "dochtml/callbacks.h"
#include "dochtml/identifiers.h"

#ifdef __cplusplus
extern "C" {
#endif

typedef struct DochtmlDocument DochtmlDocument;

typedef struct DochtmlDocumentTable {
    HRESULT(STDMETHODCALLTYPE* QueryInterface)
    (DochtmlDocument* self, const IID* iid, void** object);
    ULONG(STDMETHODCALLTYPE* AddRef)(DochtmlDocument* self);
    ULONG(STDMETHODCALLTYPE* Release)(DochtmlDocument* self);

    HRESULT(STDMETHODCALLTYPE* GetTypeInfoCount)(DochtmlDocument* self, UINT* count);
    HRESULT(STDMETHODCALLTYPE* GetTypeInfo)
    (DochtmlDocument* self, UINT index, LCID locale, struct ITypeInfo** info);
    HRESULT(STDMETHODCALLTYPE* GetIDsOfNames)
    (DochtmlDocument* self, const IID* reserved, LPOLESTR* names, UINT count, LCID locale,
     DISPID* ids);
    HRESULT(STDMETHODCALLTYPE* Invoke)
    (DochtmlDocument* self, DISPID id, const IID* reserved, LCID locale, WORD flags,
     DISPPARAMS* parameters, VARIANT* result, EXCEPINFO* exception, UINT* badArgument);

    HRESULT(STDMETHODCALLTYPE* create)(DochtmlDocument* self, BSTR fileName); /* 1 */
    HRESULT(STDMETHODCALLTYPE* close)(DochtmlDocument* self);                 /* 2 */
    HRESULT(STDMETHODCALLTYPE* insertText)(DochtmlDocument* self, BSTR text); /* 3 */
    HRESULT(STDMETHODCALLTYPE* insertEndl)(DochtmlDocument* self);            /* 4 */
    HRESULT(STDMETHODCALLTYPE* insertDiagram)
    (DochtmlDocument* self, LONG ptr, SHORT width, SHORT height);                          /* 5 */
    HRESULT(STDMETHODCALLTYPE* insertPageBreak)(DochtmlDocument* self);                    /* 6 */
    HRESULT(STDMETHODCALLTYPE* insertField)(DochtmlDocument* self, SHORT field);           /* 7 */
    HRESULT(STDMETHODCALLTYPE* startHeader)(DochtmlDocument* self);                        /* 8 */
    HRESULT(STDMETHODCALLTYPE* endHeader)(DochtmlDocument* self);                          /* 9 */
    HRESULT(STDMETHODCALLTYPE* startFooter)(DochtmlDocument* self);                        /* 10 */
    HRESULT(STDMETHODCALLTYPE* endFooter)(DochtmlDocument* self);                          /* 11 */
    HRESULT(STDMETHODCALLTYPE* setStyle)(DochtmlDocument* self, BSTR style);               /* 12 */
    HRESULT(STDMETHODCALLTYPE* setFontName)(DochtmlDocument* self, BSTR name);             /* 13 */
    HRESULT(STDMETHODCALLTYPE* setOption)(DochtmlDocument* self, BSTR option, BSTR value); /* 14 */
    HRESULT(STDMETHODCALLTYPE* trace)(DochtmlDocument* self, SHORT level);                 /* 15 */
    HRESULT(STDMETHODCALLTYPE* getPropPages)(DochtmlDocument* self, BSTR* bstrCLSID);      /* 16 */
    HRESULT(STDMETHODCALLTYPE* start)(DochtmlDocument* self);                              /* 17 */
    HRESULT(STDMETHODCALLTYPE* stop)(DochtmlDocument* self);                               /* 18 */
    HRESULT(STDMETHODCALLTYPE* showLast)(DochtmlDocument* self);                           /* 19 */
    HRESULT(STDMETHODCALLTYPE* setFontSize)(DochtmlDocument* self, SHORT size);            /* 20 */
    HRESULT(STDMETHODCALLTYPE* setFontAttribute)
    (DochtmlDocument* self, SHORT att, VARIANT_BOOL value);                           /* 21 */
    HRESULT(STDMETHODCALLTYPE* setTextAlign)(DochtmlDocument* self, SHORT textAlign); /* 22 */
    HRESULT(STDMETHODCALLTYPE* insertFile)
    (DochtmlDocument* self, BSTR fileName, SHORT insertAsType);                   /* 23 */
    HRESULT(STDMETHODCALLTYPE* getDocType)(DochtmlDocument* self, BSTR* docType); /* 24 */
    HRESULT(STDMETHODCALLTYPE* overrideRegistry)
    (DochtmlDocument* self, BSTR group, BSTR name, BSTR value, SHORT valueType); /* 25 */
    HRESULT(STDMETHODCALLTYPE* insertTOC)(DochtmlDocument* self);                /* 26 */
    HRESULT(STDMETHODCALLTYPE* startTable)(DochtmlDocument* self);               /* 27 */
    HRESULT(STDMETHODCALLTYPE* endTable)(DochtmlDocument* self);                 /* 28 */
    HRESULT(STDMETHODCALLTYPE* addCell)(DochtmlDocument* self);                  /* 29 */
    HRESULT(STDMETHODCALLTYPE* addRow)(DochtmlDocument* self);                   /* 30 */
    HRESULT(STDMETHODCALLTYPE* insertMark)
    (DochtmlDocument* self, LONG ptr, VARIANT_BOOL isPrimary);        /* 31 */
    HRESULT(STDMETHODCALLTYPE* startTOCEntry)(DochtmlDocument* self); /* 32 */
    HRESULT(STDMETHODCALLTYPE* endTOCEntry)(DochtmlDocument* self);   /* 33 */
    HRESULT(STDMETHODCALLTYPE* insertImage)
    (DochtmlDocument* self, BSTR imageFileName, BSTR fileOrUrl);                            /* 34 */
    HRESULT(STDMETHODCALLTYPE* setOrientation)(DochtmlDocument* self, SHORT docorient);     /* 35 */
    HRESULT(STDMETHODCALLTYPE* setTableRowHeight)(DochtmlDocument* self, LONG points);      /* 36 */
    HRESULT(STDMETHODCALLTYPE* insertTag)(DochtmlDocument* self, BSTR tagName);             /* 37 */
    HRESULT(STDMETHODCALLTYPE* insertXref)(DochtmlDocument* self, BSTR text, BSTR tagName); /* 38 */
    HRESULT(STDMETHODCALLTYPE* startFile)(DochtmlDocument* self, BSTR fileName);            /* 39 */
    HRESULT(STDMETHODCALLTYPE* insertLocate)(DochtmlDocument* self);                        /* 40 */
    HRESULT(STDMETHODCALLTYPE* pushDirectory)(DochtmlDocument* self, BSTR directoryName);   /* 41 */
    HRESULT(STDMETHODCALLTYPE* popDirectory)(DochtmlDocument* self);                        /* 42 */
} DochtmlDocumentTable;

struct DochtmlDocument {
    const DochtmlDocumentTable* table;
};

typedef struct DochtmlHostServices DochtmlHostServices;

typedef struct DochtmlHostServicesTable {
    HRESULT(STDMETHODCALLTYPE* QueryInterface)
    (DochtmlHostServices* self, const IID* iid, void** object);
    ULONG(STDMETHODCALLTYPE* AddRef)(DochtmlHostServices* self);
    ULONG(STDMETHODCALLTYPE* Release)(DochtmlHostServices* self);

    HRESULT(STDMETHODCALLTYPE* setSettingsStore)
    (DochtmlHostServices* self, const DochtmlSettingsStore* store);
    HRESULT(STDMETHODCALLTYPE* setProfilePath)(DochtmlHostServices* self, const DochtmlText* path);
    HRESULT(STDMETHODCALLTYPE* setImageMaps)
    (DochtmlHostServices* self, const DochtmlImageMaps* maps);
    HRESULT(STDMETHODCALLTYPE* setModel)(DochtmlHostServices* self, const DochtmlModel* model);
    HRESULT(STDMETHODCALLTYPE* setSchemaType)(DochtmlHostServices* self, LONG schemaType);
    HRESULT(STDMETHODCALLTYPE* setDrive)
    (DochtmlHostServices* self, SHORT letter, const DochtmlText* directory);
    HRESULT(STDMETHODCALLTYPE* setTraceListener)
    (DochtmlHostServices* self, const DochtmlTraceListener* listener);
    HRESULT(STDMETHODCALLTYPE* setExceptionLog)
    (DochtmlHostServices* self, const DochtmlExceptionLog* log);
    HRESULT(STDMETHODCALLTYPE* setObserver)
    (DochtmlHostServices* self, const DochtmlObserver* observer);
} DochtmlHostServicesTable;

struct DochtmlHostServices {
    const DochtmlHostServicesTable* table;
};

/* The functions of the static library dochtml_client.
 *
 * A component library that was loaded from its file stays loaded until the process ends. So does
 * one that was found by name, except on Windows. There the system manages it: it may unload the
 * library when none of its objects is alive, and at the latest when the thread's apartment ends. So
 * release documents and host services before the last `dochtml_uninitialize`, and hold the
 * `DochtmlHostServices` as long as any service is set.
 */

/* Prepare the current thread for using components, and undo that. Calls nest: each call that
 * returned `S_OK` needs its own `dochtml_uninitialize` on the same thread. A surplus
 * `dochtml_uninitialize` does nothing. */
HRESULT dochtml_initialize(void);
void dochtml_uninitialize(void);
/* Converts UTF-8 to a text, which the caller frees with `SysFreeString`. Returns null when out of
 * memory. */
BSTR dochtml_text_from_utf8(const char* utf8);
/* Creates a document. `identifier` is a program identifier ("DocHtml.DocHtml") or a class
 * identifier in braces. */
HRESULT dochtml_create_document(const char* identifier, DochtmlDocument** document);
/* The same from a library file, registered or not. `library` is its name in UTF-8. */
HRESULT dochtml_create_document_from(const char* library, DochtmlDocument** document);
/* Gets the interface through which the host provides services to such documents. The caller
 * releases it. */
HRESULT dochtml_host_services(const char* identifier, DochtmlHostServices** services);
HRESULT dochtml_host_services_from(const char* library, DochtmlHostServices** services);

#ifdef __cplusplus
}
#endif

#endif
