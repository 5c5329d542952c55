#include "replay/services/callback_guard.h"
#include "replay/services/lent_records.h"

// The model's objects and classes cross the boundary as their own addresses.

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

/// Asks an attribute for its value; one that is not there has none.
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

HRESULT tellClassName(void* /*context*/, DochtmlClass modelClass, const DochtmlSink* name) {
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

HRESULT tellText(void* /*context*/, DochtmlObject object, const DochtmlText* name,
                 const DochtmlSink* value) {
    return answered([&] {
        const MMAttribute* const attribute = objectOf(object)[viewOf(name)];
        answer(value, attribute == nullptr ? OrxString() : attribute->asString());
    });
}

HRESULT tellBoolean(void* /*context*/, DochtmlObject object, const DochtmlText* name,
                    std::int32_t* value) {
    return askAttribute(object, name, value,
                        [](const MMAttribute& attribute) { return attribute.asBoolean() ? 1 : 0; });
}

HRESULT tellLong(void* /*context*/, DochtmlObject object, const DochtmlText* name,
                 std::int32_t* value) {
    return askAttribute(object, name, value,
                        [](const MMAttribute& attribute) { return attribute.asLongInt(); });
}

HRESULT tellDouble(void* /*context*/, DochtmlObject object, const DochtmlText* name,
                   double* value) {
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

DochtmlModel recordOf(const MMSchema& schema) {
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-const-cast): never written through.
    return {const_cast<MMSchema*>(&schema),
            &findObject,
            &findClass,
            &findClassOf,
            &tellClassName,
            &hasClassAttribute,
            &hasClassAssociation,
            &hasAttribute,
            &tellText,
            &tellBoolean,
            &tellLong,
            &tellDouble,
            &findAssociated};
}

}  // namespace quillmark::replay
