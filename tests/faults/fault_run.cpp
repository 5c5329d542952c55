#include "faults/fault_run.h"

#include <algorithm>
#include <charconv>
#include <new>
#include <set>
#include <sstream>

#include "component/object/class_factory.h"
#include "component/object/document_object.h"
#include "dochtml/com_pointer.h"
#include "driver/doc_html.h"
#include "foundation/orx_exception.h"
#include "host/document_observer.h"
#include "platform/trace.h"
#include "replay/play/component_document.h"
#include "replay/services/service_registration.h"
#include "replay/tool/tool.h"

namespace quillmark::testing {

namespace {

using replay::LateBoundDocument;

std::unique_ptr<quillmark::IDocument> makeDriver() {
    return std::make_unique<DocHtml>();
}

HRESULT makeObject(IUnknown* outer, REFIID iid, void** object) {
    return DocumentObject::make(&makeDriver, outer, iid, object);
}

/// Serves the driver without a boundary of the test's own.
class DirectDocument final : public LateBoundDocument {
public:
    [[nodiscard]] int idOf(std::string_view name) override {
        return findOperation(name)->dispatchId;
    }
    InvokeStatus invoke(int id, std::span<const Argument> arguments) override {
        return quillmark::invoke(document_, id, arguments);
    }

private:
    DocHtml document_;
};

std::unique_ptr<LateBoundDocument> makeComponentDocument() {
    void* object = nullptr;
    if (FAILED(makeObject(nullptr, IID_IDispatch, &object))) {
        throw std::bad_alloc();
    }
    ComPointer<IDispatch> dispatch;
    *dispatch.receive() = static_cast<IDispatch*>(object);
    return std::make_unique<replay::ComponentDocument>(std::move(dispatch));
}

ComPointer<IHostServices> hostServices() {
    void* services = nullptr;
    if (FAILED(ClassFactory::make(&makeObject, IID_IHostServices, &services))) {
        throw std::bad_alloc();
    }
    ComPointer<IHostServices> pointer;
    *pointer.receive() = static_cast<IHostServices*>(services);
    return pointer;
}

std::unique_ptr<LateBoundDocument> makeDocument(Player player) {
    if (player == Player::driver) {
        return std::make_unique<DirectDocument>();
    }
    return makeComponentDocument();
}

}  // namespace

const char* nameOf(Player player) noexcept {
    switch (player) {
        case Player::driver:
            return "driver";
        case Player::component:
            return "component";
        case Player::tool:
            break;
    }
    return "tool";
}

/// What a run left.
struct FaultRun::Outcome {
    bool failureHappened = false;
    /// Something in the exception log or the trace, or a message of the tool.
    bool told = false;
    /// An exception that came out of the driver.
    bool escaped = false;
    std::optional<int> status;
    /// The pages that were on the disk before the failure.
    std::set<std::string> finished;
    FileTree files;
    FileTree second;
    std::size_t allocations = 0;
};

/// Listens to everything that the driver tells.
class FaultRun::Told final : public OrxExceptionLog, public TraceListener, public DocumentObserver {
public:
    Told() {
        OrxException::setLog(this);
        Trace::setListener(this);
        DocumentObserver::install(this);
    }
    ~Told() override {
        OrxException::setLog(nullptr);
        Trace::setListener(nullptr);
        DocumentObserver::install(nullptr);
    }
    Told(const Told&) = delete;
    Told& operator=(const Told&) = delete;

    [[nodiscard]] bool records(std::string_view category) const override {
        return category == catchCategory;
    }
    void write(std::string_view /*message*/) override { told_ = true; }
    [[nodiscard]] int level() const override { return Trace::errors; }
    void line(int /*level*/, std::string_view text) override {
        told_ = told_ || text.starts_with("ERR ");
    }
    void pageWritten(const OrxString& fileName) override {
        if (!AllocationFailure::hasHappened()) {
            const UncountedAllocations own;
            finished_.insert(SysFile::stripDir(fileName).str());
        }
    }

    [[nodiscard]] bool told() const noexcept { return told_; }
    [[nodiscard]] const std::set<std::string>& finished() const noexcept { return finished_; }

private:
    bool told_ = false;
    std::set<std::string> finished_;
};

FaultRun::FaultRun()
    : streams_(callStreams(stage_.in(), stage_.out())),
      settling_(parseCalls(settlingStream(stage_.in(), stage_.out()))),
      second_(parseCalls(secondStream(stage_.in(), stage_.out()))) {}

FaultRun::~FaultRun() = default;

std::size_t FaultRun::prepare(const CallStream& stream, Player player) {
    stream_ = &stream;
    player_ = player;
    calls_ = parseCalls(stream.text);
    if (player == Player::tool) {
        const Outcome outcome = playTool(AllocationFailure::never, {});
        undisturbed_ = outcome.files;
        return outcome.allocations;
    }
    undisturbed_ = playDocument(AllocationFailure::never, {}, Then::secondDocument).files;
    const Outcome outcome = playDocument(AllocationFailure::never, {}, Then::release);
    released_ = outcome.files;
    return outcome.allocations;
}

FaultRun::Outcome FaultRun::playDocument(std::size_t position, AllocationFailure::Mode mode,
                                         Then then) {
    stage_.clear();
    const StageServices services(stage_);
    Outcome outcome;
    std::unique_ptr<LateBoundDocument> document;
    {
        Told told;
        const AllocationFailure failure(position, mode);
        try {
            document = makeDocument(player_);
        } catch (const std::bad_alloc&) {
            // Then the host has no object.
        }
        for (const OwnedCall& call : calls_) {
            try {
                if (document != nullptr) {
                    call.play(*document);
                }
            } catch (const std::bad_alloc&) {
                // In front of the component are conversions of the host's own.
                outcome.escaped = outcome.escaped || player_ == Player::driver;
                outcome.told = true;
            } catch (const OrxException&) {
                // A style sheet that is missing.
            }
        }
        const bool hasDocument = document != nullptr;
        if (then == Then::release) {
            document.reset();
        }
        outcome.failureHappened = AllocationFailure::hasHappened();
        outcome.allocations = AllocationFailure::count();
        const UncountedAllocations own;
        outcome.told = outcome.told || told.told() || !hasDocument;
        outcome.finished = told.finished();
        outcome.files = stage_.written();
    }
    if (document != nullptr) {
        for (const auto* const calls : {&settling_, &second_}) {
            for (const OwnedCall& call : *calls) {
                call.play(*document);
            }
        }
        outcome.second = stage_.written("second");
    }
    return outcome;
}

FaultRun::Outcome FaultRun::playTool(std::size_t position, AllocationFailure::Mode mode) {
    stage_.clear();
    // The tool takes the streams from a file, and its own options replace services of the stage.
    const std::string file = stage_.nativeFile("in/calls.jsonl");
    {
        std::ofstream stream(file, std::ios::binary);
        stream << stream_->text;
    }
    const std::vector<std::string> arguments = {"--settings",
                                                stage_.nativeFile("in/settings.ini"),
                                                "--model",
                                                stage_.nativeFile("in/model.json"),
                                                "--image-maps",
                                                stage_.nativeFile("in/maps.json"),
                                                "--ini",
                                                stage_.nativeFile("in/Veltrano.ini"),
                                                "--exceptions",
                                                stage_.nativeFile("out/exceptions.log"),
                                                file};
    Outcome outcome;
    std::istringstream input;
    std::ostringstream output;
    std::ostringstream errors;
    const replay::ReplayEnvironment environment = {
        input,
        output,
        errors,
        false,
        stage_.nativeFile("in/dochtml-replay"),
        [] { return makeComponentDocument(); },
        [](const replay::HostServices& services) {
            return std::make_shared<replay::ServiceRegistration>(hostServices(), services);
        },
        [] { return std::string("the component linked into the test"); }};
    {
        const AllocationFailure failure(position, mode);
        outcome.status = replay::runTool(arguments, environment);
        outcome.failureHappened = AllocationFailure::hasHappened();
        outcome.allocations = AllocationFailure::count();
    }
    outcome.told = !errors.str().empty();
    outcome.files = stage_.written();
    return outcome;
}

std::string FaultRun::play(std::size_t position, AllocationFailure::Mode mode) {
    if (player_ == Player::tool) {
        return compare(playTool(position, mode), undisturbed_);
    }
    const Outcome outcome = playDocument(position, mode, Then::secondDocument);
    if (!outcome.failureHappened) {
        return compare(playDocument(position, mode, Then::release), released_);
    }
    std::string problem = compare(outcome, undisturbed_);
    return problem.empty() && !outcome.second.empty() ? compareSecond(outcome.second) : problem;
}

std::string FaultRun::compare(const Outcome& outcome, const FileTree& undisturbed) {
    if (!outcome.failureHappened) {
        return {};
    }
    if (outcome.escaped) {
        return "std::bad_alloc came out of the driver";
    }
    const bool complete = outcome.files == undisturbed;
    if (!outcome.told && !complete) {
        return "something is missing and nothing was told";
    }
    if (outcome.status && *outcome.status != replay::exitFailed && !complete) {
        return "the exit status is " + std::to_string(*outcome.status);
    }
    for (const auto& [name, bytes] : undisturbed) {
        const std::string page = name.substr(name.rfind('/') + 1);
        const auto found = outcome.files.find(name);
        if (outcome.finished.contains(page) &&
            (found == outcome.files.end() || found->second != bytes)) {
            return "the finished page " + page + " is not as in the undisturbed run";
        }
    }
    return {};
}

namespace {

/// The number of the first page of the second document.
std::uint32_t firstPageNumber(const FileTree& second) {
    constexpr std::string_view start = "second_dtl";
    std::uint32_t first = 0;
    for (const auto& [name, bytes] : second) {
        std::uint32_t number = 1;
        if (name.starts_with(start)) {
            std::from_chars(name.data() + start.size(), name.data() + name.size(), number);
            first = first == 0 ? number : std::min(first, number);
        }
    }
    return first;
}

}  // namespace

const FileTree& FaultRun::secondFrom(std::uint32_t pageNumber) {
    FileTree& files = seconds_[pageNumber];
    if (files.empty()) {
        stage_.clear();
        const StageServices services(stage_);
        DirectDocument document;
        const std::vector<OwnedCall> pageBreak =
            parseCalls("[\"create\",\"" + OrxString(stage_.out()).replaceStr("\\", "\\\\").str() +
                       "\\\\first.htm\"]\n[\"insertPageBreak\"]\n");
        pageBreak.front().play(document);
        // The settling document has two pages itself.
        for (std::uint32_t number = 2; number < pageNumber; ++number) {
            pageBreak.back().play(document);
        }
        for (const auto* const calls : {&settling_, &second_}) {
            for (const OwnedCall& call : *calls) {
                call.play(document);
            }
        }
        files = stage_.written("second");
    }
    return files;
}

std::string FaultRun::compareSecond(const FileTree& second) {
    const std::uint32_t first = firstPageNumber(second);
    if (first == 0 || first > 1000) {
        return "the second document has no pages";
    }
    const FileTree& expected = secondFrom(first);
    if (second == expected) {
        return {};
    }
    for (const auto& [name, bytes] : expected) {
        const auto found = second.find(name);
        if (found == second.end() || found->second != bytes) {
            return "the second document has another " + name;
        }
    }
    return "the second document has more files";
}

}  // namespace quillmark::testing
