#ifndef DOCHTML_AUTOMATION_H
#define DOCHTML_AUTOMATION_H

/* The types of the component's boundary, for C (C11 or later) and C++.
 *
 * On Windows they are the system's own. Elsewhere the headers named below declare the same types
 * under the same names and with the same layout rules, so that a host's source is one for both:
 * 32-bit result codes, interface and class identifiers, length-prefixed wide texts (`BSTR`) and
 * the variant values of late-bound calls.
 */

/* How an identifier begins that is a constant of every source file that includes it. */
#ifdef __cplusplus
#define DOCHTML_IDENTIFIER inline constexpr
#else
#define DOCHTML_IDENTIFIER static const
#endif

#ifdef _WIN32
#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#ifndef NOMINMAX
#define NOMINMAX
#endif
/* The first brings the types that the second needs. */
#include <objbase.h>
#include <oleauto.h>
#else
#include "dochtml/automation_types.h"
/* The functions need the types. */
#include "dochtml/automation_functions.h"
#ifdef __cplusplus
#include "dochtml/automation_interfaces.h"
#endif
#endif

#endif
