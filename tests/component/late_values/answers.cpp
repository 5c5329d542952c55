#include "component/late_values/answers.h"

#include <cstdio>
#include <map>

#include "component/late_values/made_value.h"
#include "component/object/recorded_object.h"
#include "dochtml/client.h"

namespace quillmark::testing {
namespace {

/// An operation whose last parameter is of one of the kinds.
struct AskedOperation {
    DISPID id;
    UINT parameters;
    /// What the recording contains before that parameter.
    std::string front;
};

const std::array<AskedOperation, ValueRow::parameterCount>& askedOperations() {
    static const std::array<AskedOperation, ValueRow::parameterCount> operations = {{
        {7, 1, "insertField("},
        {36, 1, "setTableRowHeight("},
        {31, 2, "insertMark(1,"},
        {3, 1, "insertText("},
    }};
    return operations;
}

std::string failureName(HRESULT result) {
    static const std::map<HRESULT, std::string> names = {
        {DISP_E_TYPEMISMATCH, "mismatch"},     {DISP_E_OVERFLOW, "overflow"},
        {DISP_E_BADVARTYPE, "bad-type"},       {E_INVALIDARG, "invalid"},
        {DISP_E_PARAMNOTOPTIONAL, "left-out"},
    };
    const auto name = names.find(result);
    return name == names.end() ? "result " + std::to_string(result) : name->second;
}

/// The text with every unit outside printable ASCII as its number.
std::string escaped(const std::string& utf8) {
    std::string shown;
    const Text text = textFromUtf8(utf8);
    for (const char16_t unit : text.view()) {
        if (unit >= u' ' && unit < 0x7F && unit != u'\\') {
            shown += static_cast<char>(unit);
        } else {
            std::array<char, 8> number{};
            std::snprintf(number.data(), number.size(), "\\u%04X", unsigned{unit});
            shown += number.data();
        }
    }
    return shown;
}

std::string answerOf(const AskedOperation& operation, MadeValue& value) {
    const RecordedObject object;
    VARIANT arguments[2] = {value.variant(), {}};
    arguments[1].vt = VT_I4;
    arguments[1].lVal = 1;
    DISPPARAMS parameters{arguments, nullptr, operation.parameters, 0};
    const HRESULT result = object.document().Invoke(operation.id, IID_NULL, 0, DISPATCH_METHOD,
                                                    &parameters, nullptr, nullptr, nullptr);
    if (FAILED(result)) {
        return failureName(result);
    }
    const std::string& call = object.calls().back();
    return escaped(call.substr(operation.front.size(), call.size() - operation.front.size() - 1));
}

}  // namespace

std::array<std::string, ValueRow::parameterCount> answersTo(const std::string& type,
                                                            const std::string& value) {
    std::array<std::string, ValueRow::parameterCount> answers;
    MadeValue made(type, value);
    for (std::size_t i = 0; i < answers.size(); ++i) {
        answers[i] = answerOf(askedOperations()[i], made);
    }
    return answers;
}

}  // namespace quillmark::testing
