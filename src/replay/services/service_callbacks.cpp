#include "replay/services/service_callbacks.h"

#include "platform/text_encoding.h"
#include "replay/services/callback_guard.h"

namespace quillmark::replay {

namespace {

template <typename Service>
Service& serviceOf(void* context) noexcept {
    return *static_cast<Service*>(context);
}

std::int32_t readSetting(void* context, const DochtmlText* group, const DochtmlText* name,
                         const DochtmlSink* value) {
    return guarded(std::int32_t{0}, [&]() -> std::int32_t {
        const TextEncoding& encoding = TextEncoding::current();
        const auto found = serviceOf<SettingsStore>(context).read(encoding.toUtf8(viewOf(group)),
                                                                  encoding.toUtf8(viewOf(name)));
        if (!found) {
            return 0;
        }
        answer(value, encoding.fromUtf8(*found));
        return 1;
    });
}

std::int32_t writeSetting(void* context, const DochtmlText* group, const DochtmlText* name,
                          const DochtmlText* value) {
    return guarded(std::int32_t{0}, [&] {
        const TextEncoding& encoding = TextEncoding::current();
        const bool kept = serviceOf<SettingsStore>(context).write(encoding.toUtf8(viewOf(group)),
                                                                  encoding.toUtf8(viewOf(name)),
                                                                  encoding.toUtf8(viewOf(value)));
        return std::int32_t{kept ? 1 : 0};
    });
}

void findRegions(void* context, const DochtmlText* picture, const DochtmlSink* texts) {
    guarded([&] {
        std::vector<OrxString> regions;
        serviceOf<CImageMapInterface>(context).getRegions(viewOf(picture), regions);
        for (const OrxString& text : regions) {
            answer(texts, text);
        }
    });
}

void hearLine(void* context, std::int32_t level, const DochtmlText* text) {
    guarded([&] { serviceOf<TraceListener>(context).line(level, viewOf(text)); });
}

std::int32_t recordsCategory(void* context, const DochtmlText* category) {
    return guarded(std::int32_t{0}, [&] {
        const bool records = serviceOf<OrxExceptionLog>(context).records(viewOf(category));
        return std::int32_t{records ? 1 : 0};
    });
}

void writeMessage(void* context, const DochtmlText* message) {
    guarded([&] { serviceOf<OrxExceptionLog>(context).write(viewOf(message)); });
}

void hearPage(void* context, const DochtmlText* fileName) {
    guarded([&] { serviceOf<DocumentObserver>(context).pageWritten(viewOf(fileName)); });
}

void hearCopy(void* context, const DochtmlText* target) {
    guarded([&] { serviceOf<DocumentObserver>(context).fileCopied(viewOf(target)); });
}

void hearEntry(void* context) {
    guarded([&] { serviceOf<DocumentObserver>(context).contentsEntryAdded(); });
}

void hearUnresolved(void* context, const DochtmlText* fileName, size_t count) {
    guarded([&] {
        serviceOf<DocumentObserver>(context).unresolvedReferences(viewOf(fileName), count);
    });
}

}  // namespace

DochtmlSettingsStore callbacksOf(SettingsStore& store) {
    return {&store, &readSetting, &writeSetting};
}

DochtmlImageMaps callbacksOf(CImageMapInterface& maps) {
    return {&maps, &findRegions};
}

DochtmlTraceListener callbacksOf(TraceListener& listener) {
    return {&listener, listener.level(), &hearLine};
}

DochtmlExceptionLog callbacksOf(OrxExceptionLog& log) {
    return {&log, &recordsCategory, &writeMessage};
}

DochtmlObserver callbacksOf(DocumentObserver& observer) {
    return {&observer, &hearPage, &hearCopy, &hearEntry, &hearUnresolved};
}

}  // namespace quillmark::replay
