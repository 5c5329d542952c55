#ifndef DOCHTML_AUTOMATION_TYPES_H
#define DOCHTML_AUTOMATION_TYPES_H

/* The data types of the boundary, for systems that do not provide them. Include
 * dochtml/automation.h instead of this file. C code needs C11: `VARIANT` has an unnamed union, and
 * texts consist of `char16_t`.
 *
 * A `BSTR` points to the first UTF-16 unit of a text. The text's length in bytes precedes it as a
 * 32-bit number, and a zero unit follows it. The text itself may contain zero units. A null pointer
 * is an empty text. The receiver of an out parameter frees the text with `SysFreeString`.
 */

#include "dochtml/identifier_constant.h"

#include <stdint.h>

#ifdef __cplusplus
typedef char16_t OLECHAR;
#define OLESTR(text) u##text
#else
#include <uchar.h>
typedef char16_t OLECHAR;
#define OLESTR(text) u##text
#endif

typedef int32_t HRESULT;
typedef int32_t SCODE;
typedef int32_t BOOL;
typedef int16_t SHORT;
typedef int32_t LONG;
typedef uint32_t ULONG;
typedef uint16_t WORD;
typedef uint32_t DWORD;
typedef uint32_t UINT;
typedef uint32_t LCID;
typedef int32_t DISPID;
typedef int32_t MEMBERID;
typedef uint16_t VARTYPE;
typedef int16_t VARIANT_BOOL;
typedef OLECHAR* BSTR;
typedef OLECHAR* LPOLESTR;
typedef const OLECHAR* LPCOLESTR;

#define STDMETHODCALLTYPE
#define STDAPICALLTYPE

typedef struct GUID {
    uint32_t Data1;
    uint16_t Data2;
    uint16_t Data3;
    uint8_t Data4[8];
} GUID;
typedef GUID IID;
typedef GUID CLSID;
#ifdef __cplusplus
typedef const GUID& REFGUID;
typedef const IID& REFIID;
typedef const CLSID& REFCLSID;
#else
typedef const GUID* REFGUID;
typedef const IID* REFIID;
typedef const CLSID* REFCLSID;
#endif

/* The identifiers of the basic interfaces. */
DOCHTML_IDENTIFIER IID IID_NULL = {0, 0, 0, {0, 0, 0, 0, 0, 0, 0, 0}};
DOCHTML_IDENTIFIER IID IID_IUnknown = {0x00000000, 0x0000, 0x0000, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};
DOCHTML_IDENTIFIER IID IID_IClassFactory = {
    0x00000001, 0x0000, 0x0000, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};
DOCHTML_IDENTIFIER IID IID_IDispatch = {0x00020400, 0x0000, 0x0000, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};

#define DOCHTML_RESULT(code) ((HRESULT)(code))
#define SUCCEEDED(result) ((HRESULT)(result) >= 0)
#define FAILED(result) ((HRESULT)(result) < 0)

#define S_OK DOCHTML_RESULT(0)
#define S_FALSE DOCHTML_RESULT(1)
#define E_NOTIMPL DOCHTML_RESULT(0x80004001U)
#define E_NOINTERFACE DOCHTML_RESULT(0x80004002U)
#define E_POINTER DOCHTML_RESULT(0x80004003U)
#define E_FAIL DOCHTML_RESULT(0x80004005U)
#define E_UNEXPECTED DOCHTML_RESULT(0x8000FFFFU)
#define E_ACCESSDENIED DOCHTML_RESULT(0x80070005U)
#define E_OUTOFMEMORY DOCHTML_RESULT(0x8007000EU)
#define E_INVALIDARG DOCHTML_RESULT(0x80070057U)
#define DISP_E_UNKNOWNINTERFACE DOCHTML_RESULT(0x80020001U)
#define DISP_E_MEMBERNOTFOUND DOCHTML_RESULT(0x80020003U)
#define DISP_E_PARAMNOTFOUND DOCHTML_RESULT(0x80020004U)
#define DISP_E_TYPEMISMATCH DOCHTML_RESULT(0x80020005U)
#define DISP_E_UNKNOWNNAME DOCHTML_RESULT(0x80020006U)
#define DISP_E_BADVARTYPE DOCHTML_RESULT(0x80020008U)
#define DISP_E_OVERFLOW DOCHTML_RESULT(0x8002000AU)
#define DISP_E_BADINDEX DOCHTML_RESULT(0x8002000BU)
#define DISP_E_BADPARAMCOUNT DOCHTML_RESULT(0x8002000EU)
#define DISP_E_PARAMNOTOPTIONAL DOCHTML_RESULT(0x8002000FU)
#define CLASS_E_NOAGGREGATION DOCHTML_RESULT(0x80040110U)
#define CLASS_E_CLASSNOTAVAILABLE DOCHTML_RESULT(0x80040111U)
#define REGDB_E_READREGDB DOCHTML_RESULT(0x80040150U)
#define REGDB_E_WRITEREGDB DOCHTML_RESULT(0x80040151U)
#define REGDB_E_CLASSNOTREG DOCHTML_RESULT(0x80040154U)
#define CO_E_CLASSSTRING DOCHTML_RESULT(0x800401F3U)
#define CO_E_DLLNOTFOUND DOCHTML_RESULT(0x800401F8U)
#define CO_E_ERRORINDLL DOCHTML_RESULT(0x800401F9U)

#define VARIANT_TRUE ((VARIANT_BOOL)-1)
#define VARIANT_FALSE ((VARIANT_BOOL)0)

/* Identifies the default property of an object. */
#define DISPID_VALUE 0
#define DISPID_UNKNOWN (-1)
#define DISPID_PROPERTYPUT (-3)
#define DISPATCH_METHOD 0x1
#define DISPATCH_PROPERTYGET 0x2
#define DISPATCH_PROPERTYPUT 0x4
#define DISPATCH_PROPERTYPUTREF 0x8

/* The type of a variant's value. `VT_BYREF` is added for a reference to such a value. */
enum VARENUM {
    VT_EMPTY = 0,
    VT_NULL = 1,
    VT_I2 = 2,
    VT_I4 = 3,
    VT_R4 = 4,
    VT_R8 = 5,
    VT_CY = 6,
    VT_DATE = 7,
    VT_BSTR = 8,
    VT_DISPATCH = 9,
    VT_ERROR = 10,
    VT_BOOL = 11,
    VT_VARIANT = 12,
    VT_UNKNOWN = 13,
    VT_DECIMAL = 14,
    VT_I1 = 16,
    VT_UI1 = 17,
    VT_UI2 = 18,
    VT_UI4 = 19,
    VT_I8 = 20,
    VT_UI8 = 21,
    VT_INT = 22,
    VT_UINT = 23,
    VT_RECORD = 36,
    VT_VECTOR = 0x1000,
    VT_ARRAY = 0x2000,
    VT_BYREF = 0x4000,
    VT_RESERVED = 0x8000,
    VT_TYPEMASK = 0x0FFF
};

struct IUnknown;
struct IDispatch;
struct ITypeInfo;

/* Days since 30 December 1899; the fraction is the time of day. */
typedef double DATE;

/* An amount of money, in ten-thousandths. */
typedef struct CY {
    int64_t int64;
} CY;

/* A 96-bit integer divided by ten to the power of `scale` (0 to 28). `sign` is 0, or 0x80 for a
 * negative number. It fills a whole variant: `vt` of the variant overlays `wReserved`. */
typedef struct DECIMAL {
    WORD wReserved;
    uint8_t scale;
    uint8_t sign;
    ULONG Hi32;
    uint64_t Lo64;
} DECIMAL;

/* Gives a variant the size that hosts expect: its value has room for two pointers. */
typedef struct VariantRoom {
    void* data;
    void* record;
} VariantRoom;

typedef struct VARIANT {
    VARTYPE vt;
    WORD wReserved1;
    WORD wReserved2;
    WORD wReserved3;
    union {
        int64_t llVal;
        uint64_t ullVal;
        int32_t lVal;
        uint32_t ulVal;
        int32_t intVal;
        uint32_t uintVal;
        int16_t iVal;
        uint16_t uiVal;
        int8_t cVal;
        uint8_t bVal;
        float fltVal;
        double dblVal;
        DATE date;
        CY cyVal;
        VARIANT_BOOL boolVal;
        SCODE scode;
        BSTR bstrVal;
        struct IUnknown* punkVal;
        struct IDispatch* pdispVal;
        void* byref;
        BSTR* pbstrVal;
        struct VARIANT* pvarVal;
        int16_t* piVal;
        int32_t* plVal;
        VARIANT_BOOL* pboolVal;
        VariantRoom reserved;
    };
} VARIANT;
typedef VARIANT VARIANTARG;

/* The arguments of a late-bound call: first the named ones, then the others from last to first. */
typedef struct DISPPARAMS {
    VARIANTARG* rgvarg;
    DISPID* rgdispidNamedArgs;
    UINT cArgs;
    UINT cNamedArgs;
} DISPPARAMS;

/* This component never fills it in, because no operation reports an error to its caller. */
typedef struct EXCEPINFO {
    WORD wCode;
    WORD wReserved;
    BSTR bstrSource;
    BSTR bstrDescription;
    BSTR bstrHelpFile;
    DWORD dwHelpContext;
    void* pvReserved;
    HRESULT (*pfnDeferredFillIn)(struct EXCEPINFO*);
    SCODE scode;
} EXCEPINFO;

#endif
