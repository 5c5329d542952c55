#pragma once

#include <map>
#include <string>
#include <vector>

#include "component/object/operation_calls.h"
#include "driver/boundary/i_document.h"

namespace quillmark::testing {

/// A step of a document: an operation by name, with its arguments.
struct Step {
    std::string name;
    std::vector<CallArgument> arguments;
};

/// A document that uses each of the 42 operations at least once. It is written to `directory` (in
/// the driver's form), which contains the style sheet "plain.css".
std::vector<Step> wholeDocument(const std::string& directory);

/// Ways to make a step's call. Each returns the out text, if the operation has one.
std::u16string callByTable(::IDocument& document, const Step& step);
std::u16string callById(::IDocument& document, const Step& step);
std::u16string callByName(::IDocument& document, const Step& step);
/// The same without a component: calls the driver directly.
std::u16string callDirectly(IDocument& document, const Step& step);

}  // namespace quillmark::testing
