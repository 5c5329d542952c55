#pragma once

#include <cstdint>
#include <vector>

#include "foundation/orx_string.h"

namespace quillmark {

/// The host's metamodel library: only what the driver asks of it. Every pointer handed out
/// belongs to the library and lives until its schema changes. Any operation may throw
/// `OrxException`; the driver logs that and takes the answer as empty.

class MMAttribute {
public:
    virtual ~MMAttribute() = default;
    [[nodiscard]] virtual OrxString asString() const = 0;
    [[nodiscard]] virtual bool asBoolean() const = 0;
    [[nodiscard]] virtual std::int32_t asLongInt() const = 0;
    [[nodiscard]] virtual double asDouble() const = 0;
};

class MMClass {
public:
    virtual ~MMClass() = default;
    [[nodiscard]] virtual OrxString name() const = 0;
    [[nodiscard]] virtual bool attributeExists(const OrxString& attribute) const = 0;
    [[nodiscard]] virtual bool associationExists(const OrxString& association) const = 0;
};

class MMObject {
public:
    virtual ~MMObject() = default;
    [[nodiscard]] virtual const MMClass* getClass() const = 0;
    /// The attribute of that name, or null.
    [[nodiscard]] virtual const MMAttribute* operator[](const OrxString& attribute) const = 0;
    /// The objects at the end of an association, in the model's order.
    [[nodiscard]] virtual std::vector<const MMObject*> objects(
        const OrxString& association) const = 0;
};

class MMSchema {
public:
    virtual ~MMSchema() = default;
    /// The object behind a handle, or null when the model does not know it.
    [[nodiscard]] virtual const MMObject* object(std::uint64_t handle) const = 0;
    /// Whether the schema has a class of that name.
    [[nodiscard]] virtual const MMClass* findClass(const OrxString& name) const = 0;

    /// The host's schema, or null when there is no model.
    [[nodiscard]] static const MMSchema* getSchema() noexcept;
    /// Hands one in (it stays the caller's); null takes it back. Returns the one before.
    static const MMSchema* setSchema(const MMSchema* schema) noexcept;
};

}  // namespace quillmark
