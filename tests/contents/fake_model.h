#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "foundation/orx_exception.h"
#include "host/metamodel.h"

namespace quillmark::testing {

/// An attribute with a text; numbers and booleans are read off it.
class FakeAttribute final : public MMAttribute {
public:
    explicit FakeAttribute(std::string text) : text_(std::move(text)) {}
    [[nodiscard]] OrxString asString() const override { return answered(); }
    [[nodiscard]] bool asBoolean() const override { return answered() == "true"; }
    [[nodiscard]] std::int32_t asLongInt() const override { return std::stoi(answered().str()); }
    [[nodiscard]] double asDouble() const override { return std::stod(answered().str()); }

    /// Makes every question fail.
    bool broken = false;

private:
    [[nodiscard]] OrxString answered() const {
        if (broken) {
            throw OrxException("attribute is broken");
        }
        return text_;
    }

    OrxString text_;
};

class FakeClass final : public MMClass {
public:
    explicit FakeClass(OrxString name) : name_(std::move(name)) {}
    [[nodiscard]] OrxString name() const override {
        if (broken) {
            throw OrxException("class is broken");
        }
        return name_;
    }
    [[nodiscard]] bool attributeExists(const OrxString& attribute) const override {
        return attributes.contains(attribute);
    }
    [[nodiscard]] bool associationExists(const OrxString& association) const override {
        return associations.contains(association);
    }

    std::map<OrxString, bool> attributes;
    std::map<OrxString, bool> associations;
    bool broken = false;

private:
    OrxString name_;
};

/// A model object whose class knows every attribute and association given to the object.
class FakeObject final : public MMObject {
public:
    explicit FakeObject(OrxString className) : class_(std::move(className)) {}

    [[nodiscard]] const MMClass* getClass() const override {
        if (broken) {
            throw OrxException("object is broken");
        }
        return classless ? nullptr : &class_;
    }
    [[nodiscard]] const MMAttribute* operator[](const OrxString& attribute) const override {
        const auto found = attributes_.find(attribute);
        return found == attributes_.end() ? nullptr : &found->second;
    }
    [[nodiscard]] std::vector<const MMObject*> objects(
        const OrxString& association) const override {
        return associations_.at(association);
    }

    FakeObject& with(const OrxString& attribute, const std::string& text) {
        class_.attributes[attribute] = true;
        attributes_.emplace(attribute, FakeAttribute(text));
        return *this;
    }
    FakeObject& linked(const OrxString& association, std::vector<const MMObject*> ends) {
        class_.associations[association] = true;
        associations_[association] = std::move(ends);
        return *this;
    }
    FakeAttribute& attribute(const OrxString& name) { return attributes_.at(name); }
    FakeClass& metaclass() { return class_; }

    bool broken = false;
    bool classless = false;

private:
    FakeClass class_;
    std::map<OrxString, FakeAttribute> attributes_;
    std::map<OrxString, std::vector<const MMObject*>> associations_;
};

/// A schema of one object, in force while it lives.
class FakeSchema final : public MMSchema {
public:
    static constexpr std::uint64_t handle = 0x0000000700000005;

    explicit FakeSchema(const FakeObject& object) : object_(object), before_(setSchema(this)) {}
    FakeSchema(const FakeSchema&) = delete;
    FakeSchema& operator=(const FakeSchema&) = delete;
    ~FakeSchema() override { setSchema(before_); }

    [[nodiscard]] const MMObject* object(std::uint64_t wanted) const override {
        if (broken) {
            throw OrxException("schema is broken");
        }
        return wanted == handle ? &object_ : nullptr;
    }
    [[nodiscard]] const MMClass* findClass(const OrxString& name) const override {
        const MMClass* const metaclass = object_.getClass();
        return metaclass->name() == name ? metaclass : nullptr;
    }

    bool broken = false;

private:
    const FakeObject& object_;
    const MMSchema* before_;
};

}  // namespace quillmark::testing
