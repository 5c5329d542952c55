#include "component/services/callback_adapters.h"

#include "component/services/callback_text.h"
#include "platform/text_encoding.h"

namespace quillmark {
namespace {

/// The host's texts are in the encoding of the document that asks.
class CallbackSettingsStore final : public SettingsStore {
public:
    explicit CallbackSettingsStore(const DochtmlSettingsStore& host) : host_(host) {}

    [[nodiscard]] std::optional<OrxString> read(const OrxString& group,
                                                const OrxString& name) const override {
        const TextEncoding& encoding = TextEncoding::current();
        const OrxString hostsGroup = encoding.fromUtf8(group);
        const OrxString hostsName = encoding.fromUtf8(name);
        const DochtmlText groupText = callbackText(hostsGroup);
        const DochtmlText nameText = callbackText(hostsName);
        CollectedTexts value;
        const DochtmlSink sink = value.sink();
        if (host_.read(host_.context, &groupText, &nameText, &sink) == 0) {
            return std::nullopt;
        }
        return encoding.toUtf8(value.text());
    }

    [[nodiscard]] bool write(const OrxString& group, const OrxString& name,
                             const OrxString& value) override {
        const TextEncoding& encoding = TextEncoding::current();
        const OrxString hostsGroup = encoding.fromUtf8(group);
        const OrxString hostsName = encoding.fromUtf8(name);
        const OrxString hostsValue = encoding.fromUtf8(value);
        const DochtmlText groupText = callbackText(hostsGroup);
        const DochtmlText nameText = callbackText(hostsName);
        const DochtmlText valueText = callbackText(hostsValue);
        return host_.write(host_.context, &groupText, &nameText, &valueText) != 0;
    }

private:
    DochtmlSettingsStore host_;
};

class CallbackProfile final : public AppProfileInterface {
public:
    explicit CallbackProfile(const DochtmlText& path) : path_(viewOf(path)) {}
    [[nodiscard]] OrxString profilePath() const override { return path_; }

private:
    OrxString path_;
};

class CallbackImageMaps final : public CImageMapInterface {
public:
    explicit CallbackImageMaps(const DochtmlImageMaps& host) : host_(host) {}

    void getRegions(const OrxString& picture, std::vector<OrxString>& regions) override {
        const DochtmlText pictureText = callbackText(picture);
        CollectedTexts texts;
        const DochtmlSink sink = texts.sink();
        host_.regions(host_.context, &pictureText, &sink);
        regions = std::move(texts.texts());
    }

private:
    DochtmlImageMaps host_;
};

class CallbackTraceListener final : public TraceListener {
public:
    explicit CallbackTraceListener(const DochtmlTraceListener& host) : host_(host) {}

    [[nodiscard]] int level() const override { return host_.level; }
    void line(int level, std::string_view text) override {
        const DochtmlText argument = callbackText(text);
        host_.line(host_.context, level, &argument);
    }

private:
    DochtmlTraceListener host_;
};

class CallbackExceptionLog final : public OrxExceptionLog {
public:
    explicit CallbackExceptionLog(const DochtmlExceptionLog& host) : host_(host) {}

    [[nodiscard]] bool records(std::string_view category) const override {
        const DochtmlText text = callbackText(category);
        return host_.records(host_.context, &text) != 0;
    }
    void write(std::string_view message) override {
        const DochtmlText text = callbackText(message);
        host_.write(host_.context, &text);
    }

private:
    DochtmlExceptionLog host_;
};

class CallbackObserver final : public DocumentObserver {
public:
    explicit CallbackObserver(const DochtmlObserver& host) : host_(host) {}

    void pageWritten(const OrxString& fileName) override {
        if (host_.pageWritten != nullptr) {
            const DochtmlText text = callbackText(fileName);
            host_.pageWritten(host_.context, &text);
        }
    }
    void fileCopied(const OrxString& target) override {
        if (host_.fileCopied != nullptr) {
            const DochtmlText text = callbackText(target);
            host_.fileCopied(host_.context, &text);
        }
    }
    void contentsEntryAdded() override {
        if (host_.contentsEntryAdded != nullptr) {
            host_.contentsEntryAdded(host_.context);
        }
    }
    void unresolvedReferences(const OrxString& fileName, std::size_t count) override {
        if (host_.unresolvedReferences != nullptr) {
            const DochtmlText text = callbackText(fileName);
            host_.unresolvedReferences(host_.context, &text, count);
        }
    }

private:
    DochtmlObserver host_;
};

}  // namespace

std::shared_ptr<SettingsStore> callbackSettingsStore(const DochtmlSettingsStore& store) {
    if (store.read == nullptr || store.write == nullptr) {
        return nullptr;
    }
    return std::make_shared<CallbackSettingsStore>(store);
}

std::unique_ptr<AppProfileInterface> callbackProfile(const DochtmlText& path) {
    return std::make_unique<CallbackProfile>(path);
}

std::unique_ptr<CImageMapInterface> callbackImageMaps(const DochtmlImageMaps& maps) {
    if (maps.regions == nullptr) {
        return nullptr;
    }
    return std::make_unique<CallbackImageMaps>(maps);
}

std::unique_ptr<TraceListener> callbackTraceListener(const DochtmlTraceListener& listener) {
    if (listener.line == nullptr) {
        return nullptr;
    }
    return std::make_unique<CallbackTraceListener>(listener);
}

std::unique_ptr<OrxExceptionLog> callbackExceptionLog(const DochtmlExceptionLog& log) {
    if (log.records == nullptr || log.write == nullptr) {
        return nullptr;
    }
    return std::make_unique<CallbackExceptionLog>(log);
}

std::unique_ptr<DocumentObserver> callbackObserver(const DochtmlObserver& observer) {
    return std::make_unique<CallbackObserver>(observer);
}

}  // namespace quillmark
