#pragma once

#include <cstdint>
#include <vector>

#include "foundation/orx_string.h"

namespace quillmark {

/// The host's metamodel library, as far as the driver uses it. The library owns all objects that it
/// returns, and they are valid until its schema changes. Any operation may throw `OrxException`.
/// The driver logs the exception and treats the result as empty.

/// The value of an attribute of a model element.
class MMAttribute {
public:
    virtual ~MMAttribute() = default;
    [[nodiscard]] virtual OrxString asString() const = 0;
    [[nodiscard]] virtual bool asBoolean() const = 0;
    [[nodiscard]] virtual std::int32_t asLongInt() const = 0;
    [[nodiscard]] virtual double asDouble() const = 0;
};

/// A class of the metamodel.
class MMClass {
public:
    virtual ~MMClass() = default;
    [[nodiscard]] virtual OrxString name() const = 0;
    [[nodiscard]] virtual bool attributeExists(const OrxString& attribute) const = 0;
    [[nodiscard]] virtual bool associationExists(const OrxString& association) const = 0;
};

/// A model element.
class MMObject {
public:
    virtual ~MMObject() = default;
    [[nodiscard]] virtual const MMClass* getClass() const = 0;
    /// The attribute of that name, or null.
    [[nodiscard]] virtual const MMAttribute* operator[](const OrxString& attribute) const = 0;
    /// The objects at the other end of an association, in the order of the model.
    [[nodiscard]] virtual std::vector<const MMObject*> objects(
        const OrxString& association) const = 0;
};

/// The model with its classes.
class MMSchema {
public:
    virtual ~MMSchema() = default;
    /// The object with this handle, or null if there is none.
    [[nodiscard]] virtual const MMObject* object(std::uint64_t handle) const = 0;
    /// The class of that name, or null.
    [[nodiscard]] virtual const MMClass* findClass(const OrxString& name) const = 0;

    /// The installed schema, or null.
    [[nodiscard]] static const MMSchema* getSchema() noexcept;
    /// Installs a schema, or none if null, and returns the one before. It is not owned and must
    /// stay alive while it is installed.
    static const MMSchema* setSchema(const MMSchema* schema) noexcept;
};

}  // namespace quillmark
