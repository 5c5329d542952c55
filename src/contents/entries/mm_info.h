#pragma once

#include <atomic>
#include <cstdint>

#include "foundation/orx_object.h"
#include "foundation/orx_string.h"
#include "host/metamodel.h"

namespace quillmark {

/// Asks the metamodel library about one model object.
///
/// A query never fails: what an object does not have, an object that is null, and an exception of
/// the library (which is told to the exception log) all give the query's empty answer. Pointers
/// handed out belong to the library. Each query takes the object that it asks, so that one helper
/// can look at its neighbours too, and a flag of the host's library that changes no answer here.
///
///     const MMInfo info(handle);
///     const OrxString kind = info.getAttrAsString("kind", info.getObject());
class MMInfo : public OrxObject {
public:
    MMInfo() = default;
    /// Holds the object behind the handle, or null when the host's schema does not know it.
    explicit MMInfo(std::uint64_t handle);

    [[nodiscard]] virtual const MMObject* getObject() const noexcept { return object_; }
    virtual void setObject(const MMObject* object) noexcept { object_ = object; }
    /// Whether the held object is of that class, and the schema knows the class.
    [[nodiscard]] virtual bool isObject(const OrxString& metaclass) const;

    /// Compare the held objects themselves; the order is for containers and means nothing.
    [[nodiscard]] virtual bool operator==(const MMInfo& other) const noexcept;
    [[nodiscard]] virtual bool operator!=(const MMInfo& other) const noexcept;
    [[nodiscard]] virtual bool operator<(const MMInfo& other) const noexcept;
    [[nodiscard]] virtual bool operator>(const MMInfo& other) const noexcept;

    /// The class that the held object is expected to be of.
    [[nodiscard]] OrxString getMetaObjectName() const { return metaObjectName_; }
    void setMetaObjectName(const OrxString& name) { metaObjectName_ = name; }
    /// Throws `OrxException` when the held object's class is not the expected one; no object
    /// counts as a class with an empty name.
    void validatePtr() const;

    /// The name of the held object's class, empty when there is none.
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
    /// The same into `found`, which is left as it is when there is none. Returns whether there is.
    bool getAssoc(const OrxString& name, const MMObject* object, MMInfo& found,
                  bool flag = false) const;

private:
    const MMObject* object_ = nullptr;
    OrxString metaObjectName_;
    /// The schema that objects are looked up in, one for all; taken afresh from the host whenever
    /// a handle is looked up. Documents of several threads meet here.
    static std::atomic<const MMSchema*> s_schema;
};

}  // namespace quillmark
