/* A library with the entry point of a component, and something else behind it: what a component of
 * another version is to the package. The environment variable OTHER_COMPONENT chooses what. */

#include <stdlib.h>
#include <string.h>

#include "dochtml/entry_points.h"
#include "dochtml/identifiers.h"

typedef struct Object {
    void* const* table;
} Object;

static int is(const char* kind) {
    const char* const wanted = getenv("OTHER_COMPONENT");
    return wanted != NULL && strcmp(wanted, kind) == 0;
}

static ULONG count(Object* self) {
    (void)self;
    return 1;
}

static HRESULT take(Object* self, const void* service) {
    (void)self;
    (void)service;
    return S_OK;
}

/* Knows the first two operations. */
static HRESULT findNames(Object* self, REFIID reserved, LPOLESTR* names, UINT number, LCID locale,
                         DISPID* ids) {
    (void)self;
    (void)reserved;
    (void)number;
    (void)locale;
    if (names[0][0] != u'c') {
        return DISP_E_UNKNOWNNAME;
    }
    ids[0] = names[0][1] == u'r' ? 1 : 2;
    return S_OK;
}

static HRESULT refuse(Object* self, REFIID iid, void** object) {
    (void)self;
    (void)iid;
    *object = NULL;
    return E_NOINTERFACE;
}

static void* const documentTable[] = {refuse, count, count, NULL, NULL, findNames, NULL};
static Object document = {documentTable};
static void* const servicesTable[] = {refuse, count, count, take, take, take,
                                      take,   take,  take,  take, take, take};
static Object services = {servicesTable};

static HRESULT findInterface(Object* self, REFIID iid, void** object) {
    (void)self;
    (void)iid;
    *object = is("no-services") ? NULL : &services;
    return *object == NULL ? E_NOINTERFACE : S_OK;
}

static HRESULT makeDocument(Object* self, void* outer, REFIID iid, void** object) {
    (void)self;
    (void)outer;
    (void)iid;
    *object = is("no-document") ? NULL : &document;
    return *object == NULL ? E_NOINTERFACE : S_OK;
}

static void* const factoryTable[] = {findInterface, count, count, makeDocument, NULL};
static Object factory = {factoryTable};

__attribute__((visibility("default"))) HRESULT DllGetClassObject(REFCLSID classId, REFIID iid,
                                                                 void** object) {
    (void)classId;
    (void)iid;
    *object = is("no-class") ? NULL : &factory;
    return *object == NULL ? CLASS_E_CLASSNOTAVAILABLE : S_OK;
}
