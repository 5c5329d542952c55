#include "model.h"

#include <map>
#include <stdexcept>

#include "json_writer.h"

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

template <typename Writer>
void writeMember(Writer& writer, std::string_view name, std::string_view value) {
    writeText(writer, name);
    writeText(writer, value);
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
    return indentedJson([this](auto& writer) {
        writer.StartObject();
        writeText(writer, "schemaType");
        writer.Int(1);
        writeText(writer, "elements");
        writer.StartObject();
        for (const Element& element : elements_) {
            writeText(writer, "0x" + hexadecimal(modelNumber) + hexadecimal(element.low));
            writer.StartObject();
            writeMember(writer, "class", element.metaclass);
            writeText(writer, "attributes");
            writer.StartObject();
            for (const auto& [name, value] : element.attributes) {
                writeMember(writer, name, value);
            }
            writer.EndObject();
            writer.EndObject();
        }
        writer.EndObject();
        writer.EndObject();
    });
}

}  // namespace quillmark::manual
