#include "contents/entries/mm_info.h"

#include <exception>
#include <functional>
#include <vector>

#include "foundation/orx_exception.h"

namespace quillmark {

namespace {

/// The answer of `query`. If the library throws, logs the exception and returns `empty`.
template <typename Answer, typename Query>
Answer guarded(Answer empty, const Query& query) {
    try {
        return query();
    } catch (const std::exception&) {
        OrxException::logCaught();
    }
    return empty;
}

OrxString classNameOf(const MMObject* object) {
    const MMClass* const metaclass = object == nullptr ? nullptr : object->getClass();
    return metaclass == nullptr ? OrxString() : metaclass->name();
}

}  // namespace

std::atomic<const MMSchema*> MMInfo::s_schema{nullptr};

MMInfo::MMInfo(std::uint64_t handle) {
    const MMSchema* const schema = MMSchema::getSchema();
    s_schema = schema;
    if (schema != nullptr) {
        object_ = guarded<const MMObject*>(nullptr, [&] { return schema->object(handle); });
    }
}

bool MMInfo::isObject(const OrxString& metaclass) const {
    const MMSchema* const schema = s_schema;
    return guarded(false, [&] {
        return object_ != nullptr && schema != nullptr && schema->findClass(metaclass) != nullptr &&
               classNameOf(object_) == metaclass;
    });
}

bool MMInfo::operator==(const MMInfo& other) const noexcept {
    return object_ == other.object_;
}
bool MMInfo::operator!=(const MMInfo& other) const noexcept {
    return object_ != other.object_;
}
bool MMInfo::operator<(const MMInfo& other) const noexcept {
    return std::less<>()(object_, other.object_);
}
bool MMInfo::operator>(const MMInfo& other) const noexcept {
    return std::greater<>()(object_, other.object_);
}

OrxString MMInfo::className() const {
    return guarded(OrxString(), [&] { return classNameOf(object_); });
}

void MMInfo::validatePtr() const {
    const OrxString actual = className();
    if (actual != metaObjectName_) {
        OrxException::raise("ERROR: A " + actual + " pointer was given where a " + metaObjectName_ +
                            " pointer was expected.");
    }
}

const MMAttribute* MMInfo::getAttr(const OrxString& name, const MMObject* object,
                                   bool /*flag*/) const {
    return guarded<const MMAttribute*>(nullptr, [&]() -> const MMAttribute* {
        const MMClass* const metaclass = object == nullptr ? nullptr : object->getClass();
        const bool exists = metaclass != nullptr && metaclass->attributeExists(name);
        return exists ? (*object)[name] : nullptr;
    });
}

OrxString MMInfo::getAttrAsString(const OrxString& name, const MMObject* object, bool flag) const {
    const MMAttribute* const attribute = getAttr(name, object, flag);
    return guarded(OrxString(),
                   [&] { return attribute == nullptr ? OrxString() : attribute->asString(); });
}

bool MMInfo::getAttrAsBool(const OrxString& name, const MMObject* object, bool flag) const {
    const MMAttribute* const attribute = getAttr(name, object, flag);
    return guarded(false, [&] { return attribute != nullptr && attribute->asBoolean(); });
}

std::int32_t MMInfo::getAttrAsLong(const OrxString& name, const MMObject* object, bool flag) const {
    const MMAttribute* const attribute = getAttr(name, object, flag);
    return guarded(std::int32_t{0},
                   [&] { return attribute == nullptr ? 0 : attribute->asLongInt(); });
}

double MMInfo::getAttrAsDouble(const OrxString& name, const MMObject* object, bool flag) const {
    const MMAttribute* const attribute = getAttr(name, object, flag);
    return guarded(0.0, [&] { return attribute == nullptr ? 0.0 : attribute->asDouble(); });
}

const MMObject* MMInfo::getAssoc(const OrxString& name, const MMObject* object,
                                 bool /*flag*/) const {
    return guarded<const MMObject*>(nullptr, [&]() -> const MMObject* {
        const MMClass* const metaclass = object == nullptr ? nullptr : object->getClass();
        if (metaclass == nullptr || !metaclass->associationExists(name)) {
            return nullptr;
        }
        const std::vector<const MMObject*> objects = object->objects(name);
        return objects.empty() ? nullptr : objects.front();
    });
}

bool MMInfo::getAssoc(const OrxString& name, const MMObject* object, MMInfo& found,
                      bool flag) const {
    const MMObject* const end = getAssoc(name, object, flag);
    if (end != nullptr) {
        found.setObject(end);
    }
    return end != nullptr;
}

}  // namespace quillmark
