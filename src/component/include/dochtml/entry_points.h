#ifndef DOCHTML_ENTRY_POINTS_H
#define DOCHTML_ENTRY_POINTS_H

/* The four functions that the library exports, for C and C++ hosts that load it themselves. */

#include "dochtml/automation.h"

#ifdef _WIN32
#include <olectl.h>
#else
#ifdef __cplusplus
extern "C" {
#endif

/* Gets the class object of one of the library's classes. The caller releases it. */
HRESULT STDAPICALLTYPE DllGetClassObject(REFCLSID classId, REFIID iid, void** object);
/* Returns `S_OK` when no object of the library and no lock on it is alive, else `S_FALSE`. */
HRESULT STDAPICALLTYPE DllCanUnloadNow(void);
/* Write and remove the registration by which hosts find the classes. After a failure `errno` is the
 * system's reason, or 0 if there is none. */
HRESULT STDAPICALLTYPE DllRegisterServer(void);
HRESULT STDAPICALLTYPE DllUnregisterServer(void);

#ifdef __cplusplus
}
#endif
#endif

#ifdef __cplusplus
extern "C" {
#endif
/* The types of these functions, for looking them up in a loaded library. */
typedef HRESULT(STDAPICALLTYPE* DochtmlGetClassObject)(REFCLSID, REFIID, void**);
typedef HRESULT(STDAPICALLTYPE* DochtmlEntryPoint)(void);
#ifdef __cplusplus
}
#endif

#endif
