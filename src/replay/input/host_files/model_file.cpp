#include "replay/input/host_files/model_file.h"

#include <charconv>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "platform/text_encoding.h"
#include "replay/input/bad_input.h"
#include "replay/input/host_files/json_file.h"
#include "settings/reg_entry.h"

namespace quillmark::replay {

class ModelFile::Attribute final : public MMAttribute {
public:
    explicit Attribute(OrxString text) : text_(std::move(text)) {}

    [[nodiscard]] OrxString asString() const override {
        return TextEncoding::current().fromUtf8(text_);
    }
    [[nodiscard]] bool asBoolean() const override { return RegEntry::ofString(text_).asBool(); }
    [[nodiscard]] std::int32_t asLongInt() const override {
        return RegEntry::ofString(text_).asInt();
    }
    [[nodiscard]] double asDouble() const override {
        double value = 0;
        std::from_chars(text_.data(), text_.data() + text_.length(), value);
        return value;
    }

private:
    OrxString text_;
};

class ModelFile::Class final : public MMClass {
public:
    explicit Class(OrxString name) : name_(std::move(name)) {}

    void addAttribute(const OrxString& attribute) { attributes_.insert(attribute); }
    [[nodiscard]] OrxString name() const override {
        return TextEncoding::current().fromUtf8(name_);
    }
    [[nodiscard]] bool attributeExists(const OrxString& attribute) const override {
        return attributes_.contains(TextEncoding::current().toUtf8(attribute));
    }
    [[nodiscard]] bool associationExists(const OrxString& /*association*/) const override {
        return false;
    }

private:
    OrxString name_;
    std::set<OrxString> attributes_;
};

class ModelFile::Element final : public MMObject {
public:
    explicit Element(const Class& elementClass) : class_(elementClass) {}

    void set(const OrxString& attribute, OrxString value) {
        attributes_.insert_or_assign(attribute, Attribute(std::move(value)));
    }
    [[nodiscard]] const MMClass* getClass() const override { return &class_; }
    [[nodiscard]] const MMAttribute* operator[](const OrxString& attribute) const override {
        const auto hit = attributes_.find(TextEncoding::current().toUtf8(attribute));
        return hit != attributes_.end() ? &hit->second : nullptr;
    }
    [[nodiscard]] std::vector<const MMObject*> objects(
        const OrxString& /*association*/) const override {
        return {};
    }

private:
    const Class& class_;
    std::map<OrxString, Attribute> attributes_;
};

namespace {

const JsonValue* memberOf(const JsonValue& object, const char* name) {
    const auto hit = object.FindMember(name);
    return hit != object.MemberEnd() ? &hit->value : nullptr;
}

std::uint64_t readHandle(std::string_view text, const std::string& place) {
    const bool hexadecimal = text.starts_with("0x") || text.starts_with("0X");
    const std::string_view digits = hexadecimal ? text.substr(2) : text;
    const char* const last = digits.data() + digits.size();
    std::uint64_t handle = 0;
    const auto [end, error] = std::from_chars(digits.data(), last, handle, hexadecimal ? 16 : 10);
    if (error != std::errc() || end != last) {
        throw BadInput(place + ": the key is not a 64-bit handle");
    }
    return handle;
}

OrxString readAttribute(const JsonValue& value, const std::string& place) {
    if (value.IsString()) {
        return ownedText(value);
    }
    if (value.IsBool()) {
        return value.GetBool() ? "true" : "false";
    }
    if (value.IsInt64()) {
        return std::to_string(value.GetInt64());
    }
    if (!value.IsDouble()) {
        throw BadInput(place + ": the attribute must be a string, a number or a boolean");
    }
    std::array<char, 32> text{};
    const auto written = std::to_chars(text.data(), text.data() + text.size(), value.GetDouble());
    return std::string(text.data(), written.ptr);
}

const JsonValue& elementsOf(const JsonDocument& document, std::string_view shown) {
    const JsonValue* const elements = memberOf(document, "elements");
    if (elements == nullptr || !elements->IsObject()) {
        throw BadInput(std::string(shown) + ": the model has no \"elements\" object");
    }
    return *elements;
}

int readSchemaType(const JsonDocument& document, std::string_view shown, int fallback) {
    const JsonValue* const type = memberOf(document, "schemaType");
    if (type != nullptr && !type->IsInt()) {
        throw BadInput(std::string(shown) + ": \"schemaType\" must be an integer");
    }
    return type != nullptr ? type->GetInt() : fallback;
}

OrxString readClassName(const JsonValue& element, const std::string& place) {
    const JsonValue* const name = element.IsObject() ? memberOf(element, "class") : nullptr;
    if (name == nullptr || !name->IsString()) {
        throw BadInput(place + ": the element has no \"class\" string");
    }
    return ownedText(*name);
}

}  // namespace

ModelFile::ModelFile(const std::filesystem::path& file, std::string_view shown) {
    const JsonDocument document = readJsonObject(file, shown);
    schemaType_ = readSchemaType(document, shown, schemaType_);
    for (const auto& member : elementsOf(document, shown).GetObject()) {
        const std::string place = std::string(shown) + ": " + std::string(utf8Text(member.name));
        const std::uint64_t handle = readHandle(utf8Text(member.name), place);
        const OrxString className = readClassName(member.value, place);
        std::unique_ptr<Class>& known = classes_[className];
        if (known == nullptr) {
            known = std::make_unique<Class>(className);
        }
        auto element = std::make_unique<Element>(*known);
        const JsonValue* const attributes = memberOf(member.value, "attributes");
        if (attributes != nullptr && !attributes->IsObject()) {
            throw BadInput(place + ": \"attributes\" must be an object");
        }
        if (attributes != nullptr) {
            for (const auto& attribute : attributes->GetObject()) {
                const OrxString name = ownedText(attribute.name);
                known->addAttribute(name);
                element->set(name, readAttribute(attribute.value, place));
            }
        }
        elements_[handle] = std::move(element);
    }
}

ModelFile::~ModelFile() = default;

const MMObject* ModelFile::object(std::uint64_t handle) const {
    const auto hit = elements_.find(handle);
    return hit != elements_.end() ? hit->second.get() : nullptr;
}

const MMClass* ModelFile::findClass(const OrxString& name) const {
    const auto hit = classes_.find(TextEncoding::current().toUtf8(name));
    return hit != classes_.end() ? hit->second.get() : nullptr;
}

}  // namespace quillmark::replay
