#ifndef DOCHTML_TESTS_PLAIN_C_H
#define DOCHTML_TESTS_PLAIN_C_H

/* The parts of the tests that must be C. */

#include "dochtml/dochtml_c.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Asks the document for `IDispatch` and for `IDocument`, calls "popDirectory" by its name, and
 * releases the interfaces. Returns `S_OK` or the first failure. */
HRESULT plain_c_call_by_name(DochtmlDocument* document);
/* Asks the services for themselves. */
HRESULT plain_c_find_services(DochtmlHostServices* services);

#ifdef __cplusplus
}
#endif

#endif
