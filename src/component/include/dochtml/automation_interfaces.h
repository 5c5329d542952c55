#ifndef DOCHTML_AUTOMATION_INTERFACES_H
#define DOCHTML_AUTOMATION_INTERFACES_H

/* The basic interfaces for C++, for systems that do not provide them. Include dochtml/automation.h
 * instead of this file.
 *
 * An interface pointer points to a pointer to a table of functions, in the order declared here.
 * Each function takes the interface pointer first. Reference counting follows the usual rules: a
 * pointer that a function returns is counted for the caller, who calls `Release` when done.
 */

#include "dochtml/automation_functions.h"

inline bool operator==(const GUID& a, const GUID& b) {
    return IsEqualGUIDValues(&a, &b) != 0;
}
inline bool IsEqualIID(const IID& a, const IID& b) {
    return a == b;
}

// Release an object with `Release`; never delete it through an interface.
struct IUnknown {
    virtual HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) = 0;
    virtual ULONG STDMETHODCALLTYPE AddRef() = 0;
    virtual ULONG STDMETHODCALLTYPE Release() = 0;

protected:
    ~IUnknown() = default;
};

struct IClassFactory : IUnknown {
    /// Creates an object. A non-null `outer` aggregates the new object; `iid` must then be
    /// `IID_IUnknown`.
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

/// Releases what a variant owns and makes it empty.
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
