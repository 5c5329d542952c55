#pragma once

#include <atomic>
#include <cstdint>

#include "foundation/orx_object.h"
#include "foundation/orx_string.h"
#include "host/metamodel.h"

namespace quillmark {

/// Queries the metamodel library about a model object.
///
/// A query never fails. It returns an empty answer if the object is null, if the object does not
/// have what was asked for, or if the library throws; an exception also goes to the exception log.
/// Returned pointers belong to the library. Each query takes the object to query, so that one
/// helper can also query its neighbours. The `flag` of the host's library changes nothing here.
///
///     const MMInfo info(handle);
///     const OrxString kind = info.getAttrAsString("kind", info.getObject());
class MMInfo : public OrxObject {
public:
    MMInfo() = default;
    /// Holds the object with that handle, or null if the host's schema does not know it.
    explicit MMInfo(std::uint64_t handle);

    [[nodiscard]] virtual const MMObject* getObject() const noexcept { return object_; }
    virtual void setObject(const MMObject* object) noexcept { object_ = object; }
    /// Whether the held object is of that class, and the schema knows the class.
    [[nodiscard]] virtual bool isObject(const OrxString& metaclass) const;

    /// Compare the addresses of the held objects. The order is only for containers.
    [[nodiscard]] virtual bool operator==(const MMInfo& other) const noexcept;
    [[nodiscard]] virtual bool operator!=(const MMInfo& other) const noexcept;
    [[nodiscard]] virtual bool operator<(const MMInfo& other) const noexcept;
    [[nodiscard]] virtual bool operator>(const MMInfo& other) const noexcept;

    /// The expected class of the held object.
    [[nodiscard]] OrxString getMetaObjectName() const { return metaObjectName_; }
    void setMetaObjectName(const OrxString& name) { metaObjectName_ = name; }
    /// Throws `OrxException` if the held object is not of the expected class. A null object has a
    /// class with an empty name.
    void validatePtr() const;

    /// The name of the held object's class; empty if there is none.
    [[nodiscard]] OrxString className() const;

    [[nodiscard]] const MMAttribute* getAttr(const OrxString& name, const MMObject* object,
                                             bool flag = false) const;
    [[nodiscard]] OrxString getAttrAsString(const OrxString& name, const MMObject* object,
                                            bool flag = false) const;
    [[nodiscard]] bool getAttrAsBool(const OrxString& name, const MMObject* object,
                                     bool flag = false) const;
    [[nodiscard]] std::int32_t getAttrAsLong(const OrxString& name, const MMObject* object,
                                             bool flag = false) const;
    [[nodiscard]] double getAttrAsDouble(const OrxString& name, const MMObject* object,
                                         bool flag = false) const;

    /// The first object at the end of the association, or null.
    [[nodiscard]] const MMObject* getAssoc(const OrxString& name, const MMObject* object,
                                           bool flag = false) const;
    /// Puts that object into `found` and returns true, or returns false and leaves `found` as it
    /// is.
    bool getAssoc(const OrxString& name, const MMObject* object, MMInfo& found,
                  bool flag = false) const;

private:
    const MMObject* object_ = nullptr;
    OrxString metaObjectName_;
    /// The schema for all lookups. Each lookup of a handle gets it again from the host. It is
    /// atomic because documents in several threads share it.
    static std::atomic<const MMSchema*> s_schema;
};

}  // namespace quillmark
