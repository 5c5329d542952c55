#pragma once

#include "dochtml/automation.h"
#include "driver/boundary/i_document.h"

namespace quillmark {

/// The arguments of `IDispatch::Invoke` that count here.
struct LateCall {
    DISPID id;
    /// May be null, which counts as `IID_NULL`.
    const IID* reserved;
    LCID locale;
    WORD flags;
    const DISPPARAMS* parameters;
    VARIANT* result;
    UINT* badArgument;
};

/// The identifiers of an operation's name and, behind it, of names of its parameters, which are
/// their positions. Names are matched in any case, as automation does. A name that is not known
/// gets `DISPID_UNKNOWN`, and the answer is then `DISP_E_UNKNOWNNAME`. A null pointer among the
/// names is `E_INVALIDARG`. `reserved` may be null, which counts as `IID_NULL`.
[[nodiscard]] HRESULT findDispatchIds(const IID* reserved, LPOLESTR* names, UINT count,
                                      DISPID* ids);

/// Converts the arguments and makes the call. Nothing is called unless every argument fits. The
/// operation's own failures stay inside: the answer is 0 for every call that was made.
[[nodiscard]] HRESULT invokeLateBound(IDocument& document, const LateCall& call);

}  // namespace quillmark
