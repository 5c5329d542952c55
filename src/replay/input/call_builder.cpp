#include "replay/input/call_builder.h"

#include <limits>

namespace quillmark::replay {

namespace {

constexpr std::string_view nameMissing =
    "not a call: the first value must be the name of an operation";

template <typename T>
bool fits(std::int64_t value) noexcept {
    return value >= std::numeric_limits<T>::min() && value <= std::numeric_limits<T>::max();
}

/// One half of a model handle may be written as an unsigned number with the same 32 bits.
bool takesUnsigned(const Operation& operation, const Parameter& parameter) noexcept {
    static const Operation* const insertMark = findOperation("insertMark");
    return &operation == insertMark && parameter.kind == ParameterKind::longInteger;
}

std::string wanted(const Operation& operation, const Parameter& parameter) {
    switch (parameter.kind) {
        case ParameterKind::string:
            return "a string";
        case ParameterKind::shortInteger:
            return "an integer from -32768 to 32767";
        case ParameterKind::longInteger:
            return takesUnsigned(operation, parameter)
                       ? "an integer from -2147483648 to 4294967295"
                       : "an integer from -2147483648 to 2147483647";
        case ParameterKind::boolean:
            return "true, false or an integer";
        case ParameterKind::outString:
            break;
    }
    return "absent";
}

std::string argumentCount(std::size_t count) {
    return count == 0   ? "no argument"
           : count == 1 ? "1 argument"
                        : std::to_string(count) + " arguments";
}

}  // namespace

void CallBuilder::start(Call& call) noexcept {
    call_ = &call;
    call.operation = nullptr;
    call.argumentCount = 0;
    call.isAscii = false;
    call.recorded = {};
    expected_ = 0;
    seen_ = 0;
    named_ = false;
}

bool CallBuilder::name(std::string_view name, std::string& problem) {
    named_ = true;
    call_->operation = findOperation(name);
    if (call_->operation == nullptr) {
        if (name == freshObject) {
            return true;
        }
        problem.assign("unknown operation \"").append(name).append("\"");
        return false;
    }
    expected_ = call_->operation->givenCount;
    return true;
}

const Parameter* CallBuilder::nextParameter() const noexcept {
    return seen_ < expected_ ? &call_->operation->parameters[seen_] : nullptr;
}

bool CallBuilder::take(const Argument& argument) noexcept {
    if (seen_ < expected_) {
        call_->arguments[seen_] = argument;
        call_->argumentCount = seen_ + 1;
    }
    ++seen_;
    return true;
}

bool CallBuilder::refuse(std::string& problem) const {
    const Parameter* const parameter = nextParameter();
    problem = std::string(call_->operation->name) + ": argument " + std::to_string(seen_ + 1) +
              " (" + parameter->name + ") must be " + wanted(*call_->operation, *parameter);
    return false;
}

bool CallBuilder::needsName(std::string& problem) const {
    if (!named_) {
        problem = nameMissing;
    }
    return !named_;
}

bool CallBuilder::addText(WideText text, std::string& problem) {
    const Parameter* const parameter = nextParameter();
    if (parameter != nullptr && parameter->kind != ParameterKind::string) {
        return refuse(problem);
    }
    return take(text);
}

bool CallBuilder::addBoolean(bool value, std::string& problem) {
    if (needsName(problem)) {
        return false;
    }
    const Parameter* const parameter = nextParameter();
    if (parameter != nullptr && parameter->kind != ParameterKind::boolean) {
        return refuse(problem);
    }
    return take(value);
}

bool CallBuilder::addInteger(std::int64_t value, std::string& problem) {
    if (needsName(problem)) {
        return false;
    }
    const Parameter* const parameter = nextParameter();
    if (parameter == nullptr || parameter->kind == ParameterKind::boolean) {
        return take(value);
    }
    if (parameter->kind == ParameterKind::shortInteger && fits<std::int16_t>(value)) {
        return take(value);
    }
    if (parameter->kind == ParameterKind::longInteger) {
        if (fits<std::int32_t>(value)) {
            return take(value);
        }
        if (fits<std::uint32_t>(value) && takesUnsigned(*call_->operation, *parameter)) {
            return take(std::int64_t{static_cast<std::int32_t>(value)});
        }
    }
    return refuse(problem);
}

bool CallBuilder::addOther(std::string& problem) {
    if (needsName(problem)) {
        return false;
    }
    if (nextParameter() != nullptr) {
        return refuse(problem);
    }
    problem =
        "argument " + std::to_string(seen_ + 1) + " must be a string, an integer or a boolean";
    return false;
}

bool CallBuilder::finish(std::string& problem) {
    if (needsName(problem)) {
        return false;
    }
    if (seen_ != expected_) {
        const char* const name =
            call_->operation != nullptr ? call_->operation->name : freshObject.data();
        problem = std::string(name) + " takes " + argumentCount(expected_) + ", not " +
                  std::to_string(seen_);
    }
    return problem.empty();
}

}  // namespace quillmark::replay
