// The whole way of the replay tool in one process: an input of either format is recognized, read
// and played into a component's document by late-bound calls. The services that the tool has come
// through the component's callbacks.

#include <memory>
#include <optional>
#include <sstream>
#include <string>

#include "component/object/class_factory.h"
#include "component/object/document_object.h"
#include "dochtml/com_pointer.h"
#include "dochtml/host_services.h"
#include "driver/doc_html.h"
#include "driver/text/element_handle.h"
#include "replay/input/bad_input.h"
#include "replay/input/host_files/image_map_file.h"
#include "replay/input/host_files/model_file.h"
#include "replay/input/inputs.h"
#include "replay/play/component_document.h"
#include "replay/play/document_counts.h"
#include "replay/play/player.h"
#include "replay/services/service_registration.h"
#include "replay/services/settings_overlay.h"
#include "support/byte_source.h"
#include "support/installed_file_system.h"
#include "support/memory_file_system.h"
#include "support/memory_settings_store.h"
#include "support/require.h"
#include "support/temp_dir.h"

namespace quillmark::fuzzing {
namespace {

constexpr const char* modelJson =
    R"({"schemaType":2,"elements":{"1":{"class":"Class","attributes":{"kind":"interface",)"
    R"("metaClass":"Class","stereotype":"Actor","userDefinedMetaClass":"Thing"}},)"
    R"("2":{"class":"Operation","attributes":{"visibility":"public"}}}})";
constexpr const char* mapsJson = R"({"C:\\in\\a.gif":["name","target","1,2,3","x","","4"]})";

/// A document whose browser is never started.
class QuietDocument final : public DocHtml {
public:
    DocResult showLast() override { return resultOk; }
};

HRESULT makeDocument(IUnknown* outer, REFIID iid, void** object) {
    return DocumentObject::make(
        []() -> std::unique_ptr<IDocument> { return std::make_unique<QuietDocument>(); }, outer,
        iid, object);
}

/// The tool's services for a component, on both sides of the callbacks.
class Services {
public:
    Services() {
        dir_.put("model.json", modelJson);
        dir_.put("maps.json", mapsJson);
        model_.emplace(dir_.nativeFile("model.json"), "model.json");
        maps_.emplace(dir_.nativeFile("maps.json"), "maps.json");
    }

    /// Everything that a host may provide. The monitors stay the caller's.
    [[nodiscard]] replay::HostServices all(std::shared_ptr<SettingsStore> settings,
                                           std::size_t choice) {
        replay::HostServices services;
        services.settings = std::move(settings);
        if (choice % 2 == 0) {
            services.profilePath = "C:\\user\\Veltrano.ini";
        }
        services.imageMaps = &*maps_;
        services.model = &*model_;
        services.schemaType = choice % 4 == 0 ? 1 : model_->schemaType();
        services.drives = {{'Q', "/nowhere"}};
        return services;
    }

private:
    TempDir dir_;
    std::optional<replay::ModelFile> model_;
    std::optional<replay::ImageMapFile> maps_;
};

/// Settings as the tool has them: some of the run over the user's.
std::shared_ptr<SettingsStore> settingsOf(std::size_t choice) {
    auto overlay =
        std::make_shared<replay::SettingsOverlay>(std::make_shared<MemorySettingsStore>());
    overlay->set("Settings", "InstallDir", "C:\\inst");
    overlay->set("Html", "PassThrough", choice % 7 == 0 ? "true" : "false");
    return overlay;
}

replay::Player::Settings playerSettings(const ComPointer<IClassFactory>& factory,
                                        std::size_t choice) {
    replay::Player::Settings settings;
    settings.makeDocument = [&factory] {
        ComPointer<IDispatch> document;
        factory->CreateInstance(nullptr, IID_IDispatch, document.receive());
        return std::make_unique<replay::ComponentDocument>(std::move(document));
    };
    settings.startDirectory = "C:\\out";
    if (choice % 3 == 0) {
        settings.outputName = "C:\\out\\named.htm";
    }
    if (choice % 5 == 0) {
        settings.traceLevel = Trace::reports;
    }
    return settings;
}

/// What the tool would show; here it is only counted.
class Told {
public:
    replay::Player::Listeners listeners() {
        return {[this](WideText) { ++count_; },
                [this](std::size_t, const std::string&) { ++count_; },
                [this](std::size_t, const std::string&) { ++count_; },
                [this](std::size_t) { ++count_; }};
    }
    replay::ExceptionMonitor::Handler handler() {
        return [this](std::string_view) { ++count_; };
    }

private:
    std::size_t count_ = 0;
};

/// The input as a file, or as the standard input.
replay::Inputs inputsOf(std::string_view bytes, std::istream& stream, std::size_t choice) {
    static const TempDir directory;
    std::string name = "-";
    if (choice % 8 == 1) {
        directory.put("calls", bytes);
        name = directory.nativeFile("calls");
    }
    return {std::span(&name, 1), stream};
}

void play(std::string_view bytes, std::size_t choice) {
    static Services services;
    std::istringstream stream{std::string(bytes)};
    const replay::Inputs inputs = inputsOf(bytes, stream, choice);
    ComPointer<IClassFactory> factory;
    require(ClassFactory::make(&makeDocument, IID_IClassFactory, factory.receive()) == S_OK,
            "the component has a class object");
    Told told;
    replay::TraceMonitor trace(inputs.hasRecording());
    replay::ExceptionMonitor exceptions(told.handler(), told.handler());
    replay::DocumentCounts counts;
    replay::HostServices lent = services.all(settingsOf(choice), choice);
    lent.traceListener = &trace;
    lent.exceptionLog = &exceptions;
    lent.observer = &counts;
    const replay::ServiceRegistration registration(factory.query<IHostServices>(IID_IHostServices),
                                                   std::move(lent));
    replay::Player player(playerSettings(factory, choice), told.listeners(), trace, exceptions);
    const auto source = replay::makeSource(inputs.all().front());
    if (source != nullptr && !player.play(*source)) {
        require(!source->problem().empty() && source->line() > 0, "a problem has a place");
    }
    player.finish();
    static_cast<void>(counts.opening.answer());
    static_cast<void>(player.charactersLost() + trace.warnings() + exceptions.caught());
}

}  // namespace
}  // namespace quillmark::fuzzing

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace quillmark;
    using namespace quillmark::fuzzing;
    MemoryFileSystem files;
    const InstalledFileSystem installed(files);
    files.put("C:\\inst\\default.css", "P { }\n");
    files.put("C:\\in\\a.gif", "gif");
    files.put("C:\\user\\Veltrano.ini", "[Document]\nUseJavaPre7=TRUE\n");
    static_cast<void>(ElementHandle::joinHighHalf(0));
    try {
        play(ByteSource(data, size).rest(), size);
    } catch (const replay::BadInput&) {
        // Refused before anything was played.
    }
    return 0;
}
