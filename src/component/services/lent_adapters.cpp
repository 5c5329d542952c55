#include "component/services/lent_adapters.h"

#include "component/services/lent_text.h"
#include "platform/text_encoding.h"

namespace quillmark {
namespace {

/// The host's texts are in the encoding of the document that asks.
class LentSettingsStore final : public SettingsStore {
public:
    explicit LentSettingsStore(const DochtmlSettingsStore& host) : host_(host) {}

    [[nodiscard]] std::optional<OrxString> read(const OrxString& group,
                                                const OrxString& name) const override {
        const TextEncoding& encoding = TextEncoding::current();
        const OrxString hostsGroup = encoding.fromUtf8(group);
        const OrxString hostsName = encoding.fromUtf8(name);
        const DochtmlText groupText = lend(hostsGroup);
        const DochtmlText nameText = lend(hostsName);
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
        const DochtmlText groupText = lend(hostsGroup);
        const DochtmlText nameText = lend(hostsName);
        const DochtmlText valueText = lend(hostsValue);
        return host_.write(host_.context, &groupText, &nameText, &valueText) != 0;
    }

private:
    DochtmlSettingsStore host_;
};

class LentProfile final : public AppProfileInterface {
public:
    explicit LentProfile(const DochtmlText& path) : path_(viewOf(path)) {}
    [[nodiscard]] OrxString profilePath() const override { return path_; }

private:
    OrxString path_;
};

class LentImageMaps final : public CImageMapInterface {
public:
    explicit LentImageMaps(const DochtmlImageMaps& host) : host_(host) {}

    void getRegions(const OrxString& picture, std::vector<OrxString>& regions) override {
        const DochtmlText pictureText = lend(picture);
        CollectedTexts texts;
        const DochtmlSink sink = texts.sink();
        host_.regions(host_.context, &pictureText, &sink);
        regions = std::move(texts.texts());
    }

private:
    DochtmlImageMaps host_;
};

class LentTraceListener final : public TraceListener {
public:
    explicit LentTraceListener(const DochtmlTraceListener& host) : host_(host) {}

    [[nodiscard]] int level() const override { return host_.level; }
    void line(int level, std::string_view text) override {
        const DochtmlText lent = lend(text);
        host_.line(host_.context, level, &lent);
    }

private:
    DochtmlTraceListener host_;
};

class LentExceptionLog final : public OrxExceptionLog {
public:
    explicit LentExceptionLog(const DochtmlExceptionLog& host) : host_(host) {}

    [[nodiscard]] bool records(std::string_view category) const override {
        const DochtmlText text = lend(category);
        return host_.records(host_.context, &text) != 0;
    }
    void write(std::string_view message) override {
        const DochtmlText text = lend(message);
        host_.write(host_.context, &text);
    }

private:
    DochtmlExceptionLog host_;
};

class LentObserver final : public DocumentObserver {
public:
    explicit LentObserver(const DochtmlObserver& host) : host_(host) {}

    void pageWritten(const OrxString& fileName) override {
        if (host_.pageWritten != nullptr) {
            const DochtmlText text = lend(fileName);
            host_.pageWritten(host_.context, &text);
        }
    }
    void fileCopied(const OrxString& target) override {
        if (host_.fileCopied != nullptr) {
            const DochtmlText text = lend(target);
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
            const DochtmlText text = lend(fileName);
            host_.unresolvedReferences(host_.context, &text, count);
        }
    }

private:
    DochtmlObserver host_;
};

}  // namespace

std::shared_ptr<SettingsStore> lentSettingsStore(const DochtmlSettingsStore& store) {
    if (store.read == nullptr || store.write == nullptr) {
        return nullptr;
    }
    return std::make_shared<LentSettingsStore>(store);
}

std::unique_ptr<AppProfileInterface> lentProfile(const DochtmlText& path) {
    return std::make_unique<LentProfile>(path);
}

std::unique_ptr<CImageMapInterface> lentImageMaps(const DochtmlImageMaps& maps) {
    if (maps.regions == nullptr) {
        return nullptr;
    }
    return std::make_unique<LentImageMaps>(maps);
}

std::unique_ptr<TraceListener> lentTraceListener(const DochtmlTraceListener& listener) {
    if (listener.line == nullptr) {
        return nullptr;
    }
    return std::make_unique<LentTraceListener>(listener);
}

std::unique_ptr<OrxExceptionLog> lentExceptionLog(const DochtmlExceptionLog& log) {
    if (log.records == nullptr || log.write == nullptr) {
        return nullptr;
    }
    return std::make_unique<LentExceptionLog>(log);
}

std::unique_ptr<DocumentObserver> lentObserver(const DochtmlObserver& observer) {
    return std::make_unique<LentObserver>(observer);
}

}  // namespace quillmark
