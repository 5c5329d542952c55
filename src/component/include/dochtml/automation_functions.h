#ifndef DOCHTML_AUTOMATION_FUNCTIONS_H
#define DOCHTML_AUTOMATION_FUNCTIONS_H

/* The functions for texts and variants, for systems that do not provide them. Include
 * dochtml/automation.h instead of this file.
 *
 * Texts are allocated with `malloc`, so host and component must use the same C library.
 */

#include <stdlib.h>
#include <string.h>

#include "dochtml/automation_types.h"

/* Bytes before a text's first unit. The last four hold its length in bytes; the rest keeps the
 * text aligned. */
#define DOCHTML_TEXT_PREFIX 8U

static inline UINT SysStringByteLen(BSTR text) {
    uint32_t bytes = 0;
    if (text != NULL) {
        memcpy(&bytes, (const char*)text - sizeof bytes, sizeof bytes);
    }
    return bytes;
}

/* The length in UTF-16 units, without the terminating zero; 0 for a null text. */
static inline UINT SysStringLen(BSTR text) {
    return SysStringByteLen(text) / (UINT)sizeof(OLECHAR);
}

/* Allocates a text of `length` units, copied from `units`, or all zeros when `units` is null.
 * Returns null when out of memory. */
static inline BSTR SysAllocStringLen(const OLECHAR* units, UINT length) {
    if (length > (UINT32_MAX - DOCHTML_TEXT_PREFIX) / sizeof(OLECHAR) - 1) {
        return NULL;
    }
    const uint32_t bytes = length * (uint32_t)sizeof(OLECHAR);
    char* block = (char*)malloc((size_t)DOCHTML_TEXT_PREFIX + bytes + sizeof(OLECHAR));
    if (block == NULL) {
        return NULL;
    }
    char* text = block + DOCHTML_TEXT_PREFIX;
    memcpy(text - sizeof bytes, &bytes, sizeof bytes);
    if (units != NULL) {
        memcpy(text, units, bytes);
    } else {
        memset(text, 0, bytes);
    }
    memset(text + bytes, 0, sizeof(OLECHAR));
    return (BSTR)(void*)text;
}

/* Copies a zero-terminated text. Returns null for null, or when out of memory. */
static inline BSTR SysAllocString(const OLECHAR* text) {
    UINT length = 0;
    if (text == NULL) {
        return NULL;
    }
    while (text[length] != 0) {
        ++length;
    }
    return SysAllocStringLen(text, length);
}

static inline void SysFreeString(BSTR text) {
    if (text != NULL) {
        free((char*)text - DOCHTML_TEXT_PREFIX);
    }
}

static inline int IsEqualGUIDValues(const GUID* a, const GUID* b) {
    return memcmp(a, b, sizeof(GUID)) == 0;
}

static inline void VariantInit(VARIANT* variant) {
    memset(variant, 0, sizeof *variant);
}

#endif
