#pragma once

#include "dochtml/automation.h"
#include "driver/boundary/i_document.h"

namespace quillmark {

/// The arguments of `IDispatch::Invoke` that are used here.
struct LateCall {
    DISPID id;
    /// Null means `IID_NULL`.
    const IID* reserved;
    LCID locale;
    WORD flags;
    const DISPPARAMS* parameters;
    VARIANT* result;
    UINT* badArgument;
};

/// Looks up the name of an operation and, after it, names of its parameters. The identifier of a
/// parameter is its position. Names are not case-sensitive. For an unknown name it sets
/// `DISPID_UNKNOWN` and returns `DISP_E_UNKNOWNNAME`. A null pointer among the names gives
/// `E_INVALIDARG`. A null `reserved` means `IID_NULL`.
[[nodiscard]] HRESULT findDispatchIds(const IID* reserved, LPOLESTR* names, UINT count,
                                      DISPID* ids);

/// Converts the arguments and makes the call, unless an argument cannot be converted. Returns
/// `S_OK` for every call that was made: failures of the operation itself are not reported.
[[nodiscard]] HRESULT invokeLateBound(IDocument& document, const LateCall& call);

}  // namespace quillmark
