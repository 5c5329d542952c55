#pragma once

#include <cstdint>
#include <functional>
#include <ostream>
#include <string>
#include <variant>
#include <vector>

#include "dochtml/document.h"
#include "dochtml/text.h"

namespace quillmark::testing {

/// The place of an out text among a call's arguments.
struct OutText {};
using CallArgument = std::variant<std::u16string, std::int16_t, std::int32_t, bool, OutText>;

/// One call of one operation, in each form that a host can use.
struct OperationCall {
    DISPID id;
    const char* name;
    std::vector<CallArgument> arguments;
    std::function<HRESULT(::IDocument&)> byTable;
    /// What `RecordingDocument` records for it.
    std::string recorded;

    friend void PrintTo(const OperationCall& call, std::ostream* out) { *out << call.name; }
};

/// A call of every operation, in the order of the identifiers.
const std::vector<OperationCall>& operationCalls();

/// The same call through `IDispatch::Invoke`.
class LateArguments {
public:
    explicit LateArguments(const std::vector<CallArgument>& arguments);
    LateArguments(const LateArguments&) = delete;
    LateArguments& operator=(const LateArguments&) = delete;

    [[nodiscard]] DISPPARAMS& parameters() noexcept { return parameters_; }
    /// In the operation's order.
    [[nodiscard]] VARIANT& argument(std::size_t position) {
        return variants_[variants_.size() - 1 - position];
    }
    [[nodiscard]] std::u16string_view outText() const noexcept { return out_.view(); }

private:
    std::vector<Text> texts_;
    Text out_;
    std::vector<VARIANT> variants_;
    DISPPARAMS parameters_{};
};

HRESULT invoke(IDispatch& object, DISPID id, DISPPARAMS& parameters, UINT* badArgument = nullptr);
HRESULT invokeById(IDispatch& object, const OperationCall& call);
/// Looks the name up first.
HRESULT invokeByName(IDispatch& object, const OperationCall& call);
/// The identifier for a name; `DISPID_UNKNOWN` when there is none.
DISPID idOf(IDispatch& object, const std::u16string& name);

}  // namespace quillmark::testing
