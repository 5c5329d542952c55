// The whole way of the replay tool in one process: an input of either format is recognized, read
// and played into a document, with the monitors that the tool has.

#include <sstream>
#include <string>

#include "driver/doc_html.h"
#include "driver/text/element_handle.h"
#include "foundation/orx_exception.h"
#include "host/document_observer.h"
#include "replay/in_process_document.h"
#include "replay/input/bad_input.h"
#include "replay/input/inputs.h"
#include "replay/play/opening_page.h"
#include "replay/play/player.h"
#include "support/byte_source.h"
#include "support/installed_file_system.h"
#include "support/memory_file_system.h"
#include "support/memory_settings_store.h"

namespace quillmark::fuzzing {
namespace {

/// Watches what the driver writes, as the tool does.
class Watched final : public DocumentObserver {
public:
    Watched() : before_(install(this)) {}
    ~Watched() override { install(before_); }
    Watched(const Watched&) = delete;
    Watched& operator=(const Watched&) = delete;

    void pageWritten(const OrxString& fileName) override { opening.pageWritten(fileName); }
    void fileCopied(const OrxString& target) override { opening.fileCopied(target); }

    replay::OpeningPage opening;

private:
    DocumentObserver* before_;
};

/// A document whose browser is never started.
class QuietDocument final : public DocHtml {
public:
    DocResult showLast() override { return resultOk; }
};

replay::Player::Settings playerSettings(std::size_t choice) {
    replay::Player::Settings settings;
    settings.makeDocument = [] {
        return std::make_unique<replay::InProcessDocument>(std::make_unique<QuietDocument>());
    };
    settings.startDirectory = "C:\\out";
    if (choice % 3 == 0) {
        settings.outputName = "C:\\out\\named.htm";
    }
    if (choice % 5 == 0) {
        settings.traceLevel = Trace::calls;
    }
    return settings;
}

void play(std::istream& stream, std::size_t choice) {
    std::size_t told = 0;
    const std::string standardInput = "-";
    const replay::Inputs inputs({&standardInput, 1}, stream);
    replay::TraceMonitor trace(inputs.hasRecording());
    Trace::setListener(&trace);
    replay::ExceptionMonitor exceptions([&](std::string_view) { ++told; },
                                        [&](std::string_view) { ++told; });
    OrxException::setLog(&exceptions);
    replay::Player player(
        playerSettings(choice),
        {[&](WideText) { ++told; }, [&](std::size_t, const std::string&) { ++told; },
         [&](std::size_t, const std::string&) { ++told; }, [&](std::size_t) { ++told; }},
        trace, exceptions);
    if (const auto source = replay::makeSource(inputs.all().front())) {
        static_cast<void>(player.play(*source));
    }
    player.finish();
    static_cast<void>(player.charactersLost());
}

}  // namespace
}  // namespace quillmark::fuzzing

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace quillmark;
    using namespace quillmark::fuzzing;
    MemoryFileSystem files;
    const InstalledFileSystem installed(files);
    InstalledSettingsStore settings;
    files.put("C:\\inst\\default.css", "P { }\n");
    files.put("C:\\in\\a.gif", "gif");
    settings.set("Settings", "InstallDir", "C:\\inst");
    static_cast<void>(ElementHandle::joinHighHalf(0));
    const Watched watched;
    std::istringstream stream(std::string(ByteSource(data, size).rest()));
    try {
        play(stream, size);
    } catch (const replay::BadInput&) {
        // Refused before anything was played.
    }
    Trace::setListener(nullptr);
    OrxException::setLog(nullptr);
    static_cast<void>(watched.opening.answer());
    return 0;
}
