// Three threads write documents through the component while a fourth replaces the services that the
// host provides: `dochtml_thread_soak CHANGES`. For a build with the thread sanitizer. It ends when
// the services were changed that often; each thread must have finished a document.

#include <array>
#include <atomic>
#include <iostream>
#include <memory>
#include <string>
#include <thread>

#include "component/object/class_factory.h"
#include "component/object/document_object.h"
#include "dochtml/text.h"
#include "driver/doc_html.h"
#include "platform/trace.h"
#include "soak/discarding_file_system.h"
#include "support/installed_file_system.h"
#include "support/memory_settings_store.h"

namespace quillmark::testing {
namespace {

std::unique_ptr<quillmark::IDocument> makeDriver() {
    return std::make_unique<DocHtml>();
}

HRESULT makeObject(IUnknown* outer, REFIID iid, void** object) {
    return DocumentObject::make(&makeDriver, outer, iid, object);
}

template <typename Interface>
ComPointer<Interface> made(HRESULT result, void* object) {
    ComPointer<Interface> pointer;
    if (SUCCEEDED(result)) {
        *pointer.receive() = static_cast<Interface*>(object);
    }
    return pointer;
}

void writeDocument(int thread) {
    void* object = nullptr;
    const HRESULT result = makeObject(nullptr, IID_IDocument, &object);
    const auto document = made<::IDocument>(result, object);
    const std::u16string name(1, static_cast<char16_t>(u'a' + thread));
    document->create(Text(u"C:\\out\\" + name + u".htm").get());
    for (int page = 0; page < 5; ++page) {
        document->insertXref(Text(u"forwards").get(), Text(u"the end").get());
        document->setStyle(Text(u"Heading 1").get());
        document->insertText(Text(u"A heading of " + name).get());
        document->insertEndl();
        document->insertImage(Text(u"C:\\none.gif").get(), Text(u"").get());
        document->insertPageBreak();
    }
    document->insertTag(Text(u"the end").get());
    document->close();
}

/// Two sets of callbacks, so that each change is one.
std::atomic<std::size_t> heard{0};

void hearLine(void* /*context*/, std::int32_t /*level*/, const DochtmlText* /*text*/) {
    ++heard;
}
std::int32_t recordsNothing(void* /*context*/, const DochtmlText* /*category*/) {
    ++heard;
    return 0;
}
void hearMessage(void* /*context*/, const DochtmlText* /*message*/) {}
void hearPage(void* /*context*/, const DochtmlText* /*fileName*/) {
    ++heard;
}
void noRegions(void* /*context*/, const DochtmlText* /*picture*/, const DochtmlSink* /*texts*/) {
    ++heard;
}

void changeServices(IHostServices& services, std::size_t changes) {
    const DochtmlTraceListener listener = {nullptr, Trace::calls, &hearLine};
    const DochtmlExceptionLog log = {nullptr, &recordsNothing, &hearMessage};
    const DochtmlObserver observer = {nullptr, &hearPage, &hearPage, nullptr, nullptr};
    const DochtmlImageMaps maps = {nullptr, &noRegions};
    for (std::size_t change = 0; change < changes; change += 4) {
        const bool provided = change % 8 == 0;
        services.setTraceListener(provided ? &listener : nullptr);
        services.setExceptionLog(provided ? &log : nullptr);
        services.setObserver(provided ? &observer : nullptr);
        services.setImageMaps(provided ? &maps : nullptr);
    }
    services.setTraceListener(nullptr);
    services.setExceptionLog(nullptr);
    services.setObserver(nullptr);
    services.setImageMaps(nullptr);
}

int soak(std::size_t changes) {
    DiscardingFileSystem disk;
    const InstalledFileSystem installed(disk);
    InstalledSettingsStore settings;
    settings.set("Html", "StyleSheet", "");
    void* object = nullptr;
    const HRESULT result = ClassFactory::make(&makeObject, IID_IHostServices, &object);
    const auto services = made<IHostServices>(result, object);
    std::atomic<bool> ends{false};
    std::array<std::size_t, 3> documents{};
    {
        std::array<std::jthread, 3> writers;
        for (int thread = 0; thread < 3; ++thread) {
            writers.at(static_cast<std::size_t>(thread)) = std::jthread([&, thread] {
                do {
                    writeDocument(thread);
                    ++documents.at(static_cast<std::size_t>(thread));
                } while (!ends);
            });
        }
        changeServices(*services.get(), changes);
        ends = true;
    }
    std::cout << changes << " changes of services, " << documents[0] << ", " << documents[1]
              << " and " << documents[2] << " documents, " << disk.files() << " files, " << heard
              << " callbacks\n";
    return disk.files() != 0 ? 0 : 1;
}

}  // namespace
}  // namespace quillmark::testing

int main(int argc, char** argv) {
    return quillmark::testing::soak(argc > 1 ? std::stoul(argv[1]) : 2'700'000);
}
