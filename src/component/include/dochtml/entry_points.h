#ifndef DOCHTML_ENTRY_POINTS_H
#define DOCHTML_ENTRY_POINTS_H

/* The four names that the library exports, for hosts that load it themselves. C and C++. */

#include "dochtml/automation.h"

#ifdef _WIN32
#include <olectl.h>
#else
#ifdef __cplusplus
extern "C" {
#endif

/* The class object of a class of the library, counted for the caller. */
HRESULT STDAPICALLTYPE DllGetClassObject(REFCLSID classId, REFIID iid, void** object);
/* `S_OK` when no object and no lock of the library is alive, else `S_FALSE`. */
HRESULT STDAPICALLTYPE DllCanUnloadNow(void);
/* Writes, or removes, what makes the classes known by their identifiers. */
HRESULT STDAPICALLTYPE DllRegisterServer(void);
HRESULT STDAPICALLTYPE DllUnregisterServer(void);

#ifdef __cplusplus
}
#endif
#endif

#ifdef __cplusplus
extern "C" {
#endif
/* Their types, for looking them up in a loaded library. */
typedef HRESULT(STDAPICALLTYPE* DochtmlGetClassObject)(REFCLSID, REFIID, void**);
typedef HRESULT(STDAPICALLTYPE* DochtmlEntryPoint)(void);
#ifdef __cplusplus
}
#endif

#endif
