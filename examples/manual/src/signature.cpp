#include "signature.h"

namespace quillmark::manual {

std::string kindName(ParameterKind kind) {
    switch (kind) {
        case ParameterKind::string:
            return "string";
        case ParameterKind::shortInteger:
            return "short";
        case ParameterKind::longInteger:
            return "long";
        case ParameterKind::boolean:
            return "boolean";
        case ParameterKind::outString:
            return "out string";
    }
    return {};
}

std::string signature(const Operation& operation) {
    std::string text = std::string(operation.name) + '(';
    for (const Parameter& parameter : operation.parameters) {
        text += text.back() == '(' ? "" : ", ";
        text += kindName(parameter.kind) + ' ' + parameter.name;
    }
    return text + ')';
}

}  // namespace quillmark::manual
