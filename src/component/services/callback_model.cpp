#include "component/services/callback_model.h"

#include <array>
#include <cstdio>
#include <map>
#include <mutex>
#include <utility>

#include "component/services/callback_text.h"
#include "foundation/orx_exception.h"

namespace quillmark {
namespace {

void check(HRESULT result) {
    if (FAILED(result)) {
        std::array<char, 64> reason{};
        std::snprintf(reason.data(), reason.size(), "The host's model failed with result 0x%08X.",
                      static_cast<unsigned>(result));
        OrxException::raise(OrxString(reason.data()));
    }
}

class CallbackSchema;

class CallbackClass final : public MMClass {
public:
    CallbackClass(const DochtmlModel& host, DochtmlClass handle) : host_(host), handle_(handle) {}

    [[nodiscard]] OrxString name() const override {
        CollectedTexts texts;
        const DochtmlSink sink = texts.sink();
        check(host_.className(host_.context, handle_, &sink));
        return texts.text();
    }
    [[nodiscard]] bool attributeExists(const OrxString& attribute) const override {
        return ask(host_.attributeExists, attribute);
    }
    [[nodiscard]] bool associationExists(const OrxString& association) const override {
        return ask(host_.associationExists, association);
    }

private:
    using Question = decltype(DochtmlModel::attributeExists);

    [[nodiscard]] bool ask(Question question, const OrxString& name) const {
        const DochtmlText text = callbackText(name);
        std::int32_t exists = 0;
        check(question(host_.context, handle_, &text, &exists));
        return exists != 0;
    }

    const DochtmlModel& host_;
    DochtmlClass handle_;
};

class CallbackAttribute final : public MMAttribute {
public:
    CallbackAttribute(const DochtmlModel& host, DochtmlObject object, OrxString name)
        : host_(host), object_(object), name_(std::move(name)) {}

    [[nodiscard]] OrxString asString() const override {
        const DochtmlText text = callbackText(name_);
        CollectedTexts texts;
        const DochtmlSink sink = texts.sink();
        check(host_.attributeText(host_.context, object_, &text, &sink));
        return texts.text();
    }
    [[nodiscard]] bool asBoolean() const override {
        return ask<std::int32_t>(host_.attributeBoolean) != 0;
    }
    [[nodiscard]] std::int32_t asLongInt() const override {
        return ask<std::int32_t>(host_.attributeLong);
    }
    [[nodiscard]] double asDouble() const override { return ask<double>(host_.attributeDouble); }

private:
    template <typename Value, typename Question>
    [[nodiscard]] Value ask(Question question) const {
        const DochtmlText text = callbackText(name_);
        Value value{};
        check(question(host_.context, object_, &text, &value));
        return value;
    }

    const DochtmlModel& host_;
    DochtmlObject object_;
    OrxString name_;
};

class CallbackObject final : public MMObject {
public:
    CallbackObject(const CallbackSchema& schema, DochtmlObject handle)
        : schema_(schema), handle_(handle) {}

    [[nodiscard]] const MMClass* getClass() const override;
    [[nodiscard]] const MMAttribute* operator[](const OrxString& attribute) const override;
    [[nodiscard]] std::vector<const MMObject*> objects(const OrxString& association) const override;

private:
    const CallbackSchema& schema_;
    DochtmlObject handle_;
};

/// Keeps every object that it has returned, because the driver holds plain pointers to them.
class CallbackSchema final : public MMSchema {
public:
    explicit CallbackSchema(const DochtmlModel& host) : host_(host) {}

    [[nodiscard]] const DochtmlModel& host() const noexcept { return host_; }

    [[nodiscard]] const MMObject* object(std::uint64_t handle) const override {
        DochtmlObject found = nullptr;
        check(host_.object(host_.context, handle, &found));
        return objectOf(found);
    }
    [[nodiscard]] const MMClass* findClass(const OrxString& name) const override {
        const DochtmlText text = callbackText(name);
        DochtmlClass found = nullptr;
        check(host_.findClass(host_.context, &text, &found));
        return classOf(found);
    }

    [[nodiscard]] const MMObject* objectOf(DochtmlObject handle) const {
        const std::lock_guard lock(mutex_);
        return handle == nullptr ? nullptr
                                 : &objects_.try_emplace(handle, *this, handle).first->second;
    }
    [[nodiscard]] const MMClass* classOf(DochtmlClass handle) const {
        const std::lock_guard lock(mutex_);
        return handle == nullptr ? nullptr
                                 : &classes_.try_emplace(handle, host_, handle).first->second;
    }
    [[nodiscard]] const MMAttribute* attributeOf(DochtmlObject object,
                                                 const OrxString& name) const {
        const std::lock_guard lock(mutex_);
        return &attributes_.try_emplace({object, name}, host_, object, name).first->second;
    }

private:
    DochtmlModel host_;
    mutable std::mutex mutex_;
    mutable std::map<DochtmlObject, CallbackObject> objects_;
    mutable std::map<DochtmlClass, CallbackClass> classes_;
    mutable std::map<std::pair<DochtmlObject, OrxString>, CallbackAttribute> attributes_;
};

const MMClass* CallbackObject::getClass() const {
    const DochtmlModel& host = schema_.host();
    DochtmlClass found = nullptr;
    check(host.classOf(host.context, handle_, &found));
    return schema_.classOf(found);
}

const MMAttribute* CallbackObject::operator[](const OrxString& attribute) const {
    const DochtmlModel& host = schema_.host();
    const DochtmlText text = callbackText(attribute);
    std::int32_t exists = 0;
    check(host.hasAttribute(host.context, handle_, &text, &exists));
    return exists == 0 ? nullptr : schema_.attributeOf(handle_, attribute);
}

std::vector<const MMObject*> CallbackObject::objects(const OrxString& association) const {
    const DochtmlModel& host = schema_.host();
    const DochtmlText text = callbackText(association);
    std::vector<const MMObject*> found;
    for (std::uint32_t index = 0;; ++index) {
        DochtmlObject other = nullptr;
        check(host.associated(host.context, handle_, &text, index, &other));
        if (other == nullptr) {
            return found;
        }
        found.push_back(schema_.objectOf(other));
    }
}

}  // namespace

std::unique_ptr<MMSchema> callbackModel(const DochtmlModel& model) {
    const bool whole = model.object != nullptr && model.findClass != nullptr &&
                       model.classOf != nullptr && model.className != nullptr &&
                       model.attributeExists != nullptr && model.associationExists != nullptr &&
                       model.hasAttribute != nullptr && model.attributeText != nullptr &&
                       model.attributeBoolean != nullptr && model.attributeLong != nullptr &&
                       model.attributeDouble != nullptr && model.associated != nullptr;
    if (!whole) {
        return nullptr;
    }
    return std::make_unique<CallbackSchema>(model);
}

}  // namespace quillmark
