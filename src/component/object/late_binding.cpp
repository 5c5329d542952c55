#include "component/object/late_binding.h"

#include <algorithm>
#include <string_view>

#include "component/module/boundary.h"
#include "component/object/call_arguments.h"
#include "driver/boundary/operation_table.h"
#include "foundation/ascii.h"

namespace quillmark {
namespace {

/// Compares a host's name with one of the table and ignores the case of ASCII letters.
bool sameName(const OLECHAR* name, std::string_view known) noexcept {
    for (const char character : known) {
        if (ascii::toLower(*name) != ascii::toLower(static_cast<OLECHAR>(character))) {
            return false;
        }
        ++name;
    }
    return *name == 0;
}

const Operation* findByName(const OLECHAR* name) noexcept {
    const auto rows = operations();
    const auto row = std::find_if(rows.begin(), rows.end(), [name](const Operation& operation) {
        return sameName(name, operation.name);
    });
    return row == rows.end() ? nullptr : &*row;
}

DISPID findParameter(const Operation& operation, const OLECHAR* name) noexcept {
    const auto parameters = operation.parameters;
    const auto found =
        std::find_if(parameters.begin(), parameters.end(),
                     [name](const Parameter& parameter) { return sameName(name, parameter.name); });
    return found == parameters.end() ? DISPID_UNKNOWN
                                     : static_cast<DISPID>(found - parameters.begin());
}

bool isNone(const IID* reserved) noexcept {
    return reserved == nullptr || IsEqualIID(*reserved, IID_NULL);
}

bool areNames(const LPOLESTR* names, UINT count) noexcept {
    return names != nullptr && count != 0 &&
           std::find(names, names + count, nullptr) == names + count;
}

}  // namespace

HRESULT findDispatchIds(const IID* reserved, LPOLESTR* names, UINT count, DISPID* ids) {
    if (!isNone(reserved)) {
        return DISP_E_UNKNOWNINTERFACE;
    }
    if (ids == nullptr || !areNames(names, count)) {
        return E_INVALIDARG;
    }
    const Operation* operation = findByName(names[0]);
    ids[0] = operation == nullptr ? DISPID_UNKNOWN : operation->dispatchId;
    for (UINT i = 1; i < count; ++i) {
        ids[i] = operation == nullptr ? DISPID_UNKNOWN : findParameter(*operation, names[i]);
    }
    const bool allKnown = std::find(ids, ids + count, DISPID_UNKNOWN) == ids + count;
    return allKnown ? S_OK : DISP_E_UNKNOWNNAME;
}

HRESULT invokeLateBound(IDocument& document, const LateCall& call) {
    if (!isNone(call.reserved)) {
        return DISP_E_UNKNOWNINTERFACE;
    }
    // A host that needs a value may ask for a method and a property in one call.
    const Operation* operation = findOperation(static_cast<int>(call.id));
    if (operation == nullptr || (call.flags & DISPATCH_METHOD) == 0) {
        return DISP_E_MEMBERNOTFOUND;
    }
    if (call.parameters == nullptr) {
        return E_INVALIDARG;
    }
    CallArguments arguments(*operation);
    const HRESULT fit = arguments.read(*call.parameters, call.locale, call.badArgument);
    if (FAILED(fit)) {
        return fit;
    }
    if (call.result != nullptr) {
        VariantInit(call.result);
    }
    return runOperation([&] {
        operation->call(document, arguments.values());
        arguments.handOutTexts();
    });
}

}  // namespace quillmark
