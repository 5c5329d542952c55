#include "model.h"

#include <map>
#include <stdexcept>

#include "json_text.h"

namespace quillmark::manual {

namespace {

/// The upper half of all handles of this model.
constexpr int modelNumber = 7;

using Attributes = std::vector<std::pair<std::string, std::string>>;

struct Kind {
    std::string metaclass;
    Attributes attributes;
};

const std::map<std::string, Kind>& kinds() {
    static const std::map<std::string, Kind> all = {
        {"interface", {"Class", {{"kind", "interface"}}}},
        {"package", {"Package", {}}},
        {"diagram", {"Diagram", {{"kind", "subsystem"}}}},
        {"setting", {"Attribute", {{"visibility", "public"}}}},
        {"style", {"TaggedValue", {}}},
        {"operation", {"Operation", {{"visibility", "public"}}}},
        {"opening", {"Operation", {{"visibility", "public"}, {"userDefinedMetaClass", "Opening"}}}},
        {"closing", {"Operation", {{"visibility", "public"}, {"userDefinedMetaClass", "Closing"}}}},
    };
    return all;
}

std::string hexadecimal(int number) {
    constexpr std::string_view digits = "0123456789abcdef";
    std::string text;
    for (int shift = 28; shift >= 0; shift -= 4) {
        text += digits[static_cast<std::size_t>((number >> shift) & 15)];
    }
    return text;
}

std::string attributesJson(const Attributes& attributes) {
    std::string json;
    for (const auto& [name, value] : attributes) {
        json += (json.empty() ? "" : ", ") + jsonText(name) + ": " + jsonText(value);
    }
    return json;
}

}  // namespace

Handle Model::add(const std::string& name, const std::string& word) {
    if (word == "collection") {
        return collection;
    }
    const auto kind = kinds().find(word);
    if (kind == kinds().end()) {
        throw std::runtime_error("the model has no kind of element \"" + word + '"');
    }
    Element element{static_cast<int>(elements_.size()) + 1, kind->second.metaclass,
                    kind->second.attributes};
    element.attributes.emplace_back("name", name);
    elements_.push_back(element);
    return {element.low, modelNumber};
}

std::string Model::json() const {
    std::string json = "{\n  \"schemaType\": 1,\n  \"elements\": {\n";
    for (const Element& element : elements_) {
        const bool last = &element == &elements_.back();
        json += "    \"0x" + hexadecimal(modelNumber) + hexadecimal(element.low) +
                "\": {\"class\": " + jsonText(element.metaclass) + ", \"attributes\": {" +
                attributesJson(element.attributes) + "}}" + (last ? "\n" : ",\n");
    }
    return json + "  }\n}\n";
}

}  // namespace quillmark::manual
