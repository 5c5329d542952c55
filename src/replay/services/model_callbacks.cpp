#include "replay/services/callback_guard.h"
#include "replay/services/service_callbacks.h"

// Objects and classes of the model are passed to the component as addresses.

namespace quillmark::replay {

namespace {

const MMSchema& schemaOf(void* context) noexcept {
    return *static_cast<const MMSchema*>(context);
}

const MMObject& objectOf(DochtmlObject object) noexcept {
    return *static_cast<const MMObject*>(object);
}

const MMClass& classOf(DochtmlClass modelClass) noexcept {
    return *static_cast<const MMClass*>(modelClass);
}

template <typename Body>
HRESULT answered(Body body) noexcept {
    return guarded(HRESULT{E_FAIL}, [&]() -> HRESULT {
        body();
        return S_OK;
    });
}

/// Reads the value of an attribute; a missing one has the default of its type.
template <typename Value, typename Ask>
HRESULT askAttribute(DochtmlObject object, const DochtmlText* name, Value* value, Ask ask) {
    return answered([&] {
        const MMAttribute* const attribute = objectOf(object)[viewOf(name)];
        *value = attribute == nullptr ? Value{} : static_cast<Value>(ask(*attribute));
    });
}

HRESULT findObject(void* context, std::uint64_t handle, DochtmlObject* object) {
    return answered([&] { *object = schemaOf(context).object(handle); });
}

HRESULT findClass(void* context, const DochtmlText* name, DochtmlClass* found) {
    return answered([&] { *found = schemaOf(context).findClass(viewOf(name)); });
}

HRESULT findClassOf(void* /*context*/, DochtmlObject object, DochtmlClass* found) {
    return answered([&] { *found = objectOf(object).getClass(); });
}

HRESULT getClassName(void* /*context*/, DochtmlClass modelClass, const DochtmlSink* name) {
    return answered([&] { answer(name, classOf(modelClass).name()); });
}

HRESULT hasClassAttribute(void* /*context*/, DochtmlClass modelClass, const DochtmlText* attribute,
                          std::int32_t* exists) {
    return answered(
        [&] { *exists = classOf(modelClass).attributeExists(viewOf(attribute)) ? 1 : 0; });
}

HRESULT hasClassAssociation(void* /*context*/, DochtmlClass modelClass,
                            const DochtmlText* association, std::int32_t* exists) {
    return answered(
        [&] { *exists = classOf(modelClass).associationExists(viewOf(association)) ? 1 : 0; });
}

HRESULT hasAttribute(void* /*context*/, DochtmlObject object, const DochtmlText* attribute,
                     std::int32_t* exists) {
    return answered([&] { *exists = objectOf(object)[viewOf(attribute)] != nullptr ? 1 : 0; });
}

HRESULT getText(void* /*context*/, DochtmlObject object, const DochtmlText* name,
                const DochtmlSink* value) {
    return answered([&] {
        const MMAttribute* const attribute = objectOf(object)[viewOf(name)];
        answer(value, attribute == nullptr ? OrxString() : attribute->asString());
    });
}

HRESULT getBoolean(void* /*context*/, DochtmlObject object, const DochtmlText* name,
                   std::int32_t* value) {
    return askAttribute(object, name, value,
                        [](const MMAttribute& attribute) { return attribute.asBoolean() ? 1 : 0; });
}

HRESULT getLong(void* /*context*/, DochtmlObject object, const DochtmlText* name,
                std::int32_t* value) {
    return askAttribute(object, name, value,
                        [](const MMAttribute& attribute) { return attribute.asLongInt(); });
}

HRESULT getDouble(void* /*context*/, DochtmlObject object, const DochtmlText* name, double* value) {
    return askAttribute(object, name, value,
                        [](const MMAttribute& attribute) { return attribute.asDouble(); });
}

HRESULT findAssociated(void* /*context*/, DochtmlObject object, const DochtmlText* association,
                       std::uint32_t index, DochtmlObject* other) {
    return answered([&] {
        const auto objects = objectOf(object).objects(viewOf(association));
        *other = index < objects.size() ? objects[index] : nullptr;
    });
}

}  // namespace

DochtmlModel callbacksOf(const MMSchema& schema) {
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-const-cast): never written through.
    return {const_cast<MMSchema*>(&schema),
            &findObject,
            &findClass,
            &findClassOf,
            &getClassName,
            &hasClassAttribute,
            &hasClassAssociation,
            &hasAttribute,
            &getText,
            &getBoolean,
            &getLong,
            &getDouble,
            &findAssociated};
}

}  // namespace quillmark::replay
