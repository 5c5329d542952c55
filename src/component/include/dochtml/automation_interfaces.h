#ifndef DOCHTML_AUTOMATION_INTERFACES_H
#define DOCHTML_AUTOMATION_INTERFACES_H

/* The boundary's basic interfaces for C++ on systems that have none of their own. Include
 * dochtml/automation.h.
 *
 * An interface is a pointer to a table of functions in the order written here, each taking the
 * interface pointer first. Reference counting follows the usual rules: a pointer handed out is
 * counted for the receiver, who calls `Release` when done.
 */

#include "dochtml/automation_functions.h"

inline bool operator==(const GUID& a, const GUID& b) {
    return IsEqualGUIDValues(&a, &b) != 0;
}
inline bool IsEqualIID(const IID& a, const IID& b) {
    return a == b;
}

// Objects are let go of with `Release`, never deleted through an interface.
struct IUnknown {
    virtual HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) = 0;
    virtual ULONG STDMETHODCALLTYPE AddRef() = 0;
    virtual ULONG STDMETHODCALLTYPE Release() = 0;

protected:
    ~IUnknown() = default;
};

struct IClassFactory : IUnknown {
    /// Makes an object, inside `outer` when that is not null; then only `IUnknown` may be asked.
    virtual HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID iid,
                                                     void** object) = 0;
    virtual HRESULT STDMETHODCALLTYPE LockServer(BOOL lock) = 0;

protected:
    ~IClassFactory() = default;
};

struct IDispatch : IUnknown {
    virtual HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) = 0;
    virtual HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) = 0;
    virtual HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID reserved, LPOLESTR* names, UINT count,
                                                    LCID locale, DISPID* ids) = 0;
    virtual HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID reserved, LCID locale, WORD flags,
                                             DISPPARAMS* parameters, VARIANT* result,
                                             EXCEPINFO* exception, UINT* badArgument) = 0;

protected:
    ~IDispatch() = default;
};

/// Empties a variant, letting go of what it owns.
inline HRESULT VariantClear(VARIANT* variant) {
    if (variant->vt == VT_BSTR) {
        SysFreeString(variant->bstrVal);
    } else if (variant->vt == VT_UNKNOWN && variant->punkVal != nullptr) {
        variant->punkVal->Release();
    } else if (variant->vt == VT_DISPATCH && variant->pdispVal != nullptr) {
        variant->pdispVal->Release();
    }
    VariantInit(variant);
    return S_OK;
}

#endif
