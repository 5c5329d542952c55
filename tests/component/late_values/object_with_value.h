#pragma once

#include "dochtml/automation.h"

namespace quillmark::testing {

/// An object of a host whose only member is its default property; its owner deletes it.
class ObjectWithValue final : public IDispatch {
public:
    /// `value` may be null for an object without one; else it must outlive the object.
    explicit ObjectWithValue(const VARIANT* value) noexcept : value_(value) {}
    ~ObjectWithValue() = default;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID /*iid*/, void** object) override {
        *object = nullptr;
        return E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return 1; }
    ULONG STDMETHODCALLTYPE Release() override { return 1; }
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
        *count = 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT /*index*/, LCID /*locale*/,
                                          ITypeInfo** /*info*/) override {
        return DISP_E_BADINDEX;
    }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID /*reserved*/, LPOLESTR* /*names*/,
                                            UINT /*count*/, LCID /*locale*/,
                                            DISPID* /*ids*/) override {
        return DISP_E_UNKNOWNNAME;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID /*reserved*/, LCID /*locale*/, WORD flags,
                                     DISPPARAMS* parameters, VARIANT* result,
                                     EXCEPINFO* /*exception*/, UINT* /*badArgument*/) override {
        const bool isRead = id == DISPID_VALUE && (flags & DISPATCH_PROPERTYGET) != 0;
        if (value_ == nullptr || !isRead || parameters->cArgs != 0) {
            return DISP_E_MEMBERNOTFOUND;
        }
        *result = *value_;
        if (result->vt == VT_BSTR) {
            result->bstrVal = SysAllocStringLen(value_->bstrVal, SysStringLen(value_->bstrVal));
        }
        return S_OK;
    }

private:
    const VARIANT* value_;
};

}  // namespace quillmark::testing
