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

/// A document in which each of the 42 operations comes at least once. `directory` (driver's form)
/// is where it goes; the style sheet "plain.css" lies there.
std::vector<Step> wholeDocument(const std::string& directory);

/// Ways to make a step's call; each answers the out text, if the operation has one.
std::u16string callByTable(::IDocument& document, const Step& step);
std::u16string callById(::IDocument& document, const Step& step);
std::u16string callByName(::IDocument& document, const Step& step);
/// The same without a component, straight at the driver.
std::u16string callDirectly(IDocument& document, const Step& step);

}  // namespace quillmark::testing
