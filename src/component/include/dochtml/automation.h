#ifndef DOCHTML_AUTOMATION_H
#define DOCHTML_AUTOMATION_H

/* The types of the component's boundary, for C (C11 or later) and C++: 32-bit result codes,
 * interface and class identifiers, length-prefixed wide texts (`BSTR`) and the variant values of
 * late-bound calls.
 *
 * On Windows they are the system's own. Elsewhere the headers included below declare the same types
 * with the same names and layout rules, so that the same host source compiles on every system.
 */

#include "dochtml/identifier_constant.h"

#ifdef _WIN32
#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#ifndef NOMINMAX
#define NOMINMAX
#endif
/* In this order: oleauto.h needs types from objbase.h. */
#include <objbase.h>
#include <oleauto.h>
#else
#include "dochtml/automation_types.h"
/* In this order: the functions need the types. */
#include "dochtml/automation_functions.h"
#ifdef __cplusplus
#include "dochtml/automation_interfaces.h"
#endif
#endif

#endif
