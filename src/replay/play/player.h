#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "foundation/orx_string.h"
#include "replay/input/call_source.h"
#include "replay/play/document_encoding.h"
#include "replay/play/exception_monitor.h"
#include "replay/play/late_bound_document.h"
#include "replay/play/recording_fit.h"
#include "replay/play/trace_monitor.h"

namespace quillmark::replay {

/// Plays calls into a document, input after input into the same object.
///
/// A `create` whose name the document's encoding cannot hold is refused: its document would get
/// another name, possibly that of another document. It is skipped with the calls that follow, up
/// to the next `create` or new object.
///
/// A recording also contains the calls that the driver made on itself. To play each call once, the
/// player listens to the call lines that the driver writes during a call, and skips the same lines
/// of the recording.
class Player {
public:
    struct Settings {
        DocumentMaker makeDocument;
        /// The settings that the documents read; null for none.
        std::shared_ptr<const SettingsStore> store{};
        /// In the driver's form, in UTF-8; relative names of `create` count from it.
        OrxString startDirectory;
        /// Takes the place of the file name of the first `create`.
        std::optional<OrxString> outputName;
        /// `trace` is called with it first, for each object.
        std::optional<std::int16_t> traceLevel;
    };
    /// What the player reports while it plays; each may be empty.
    struct Listeners {
        /// A text that an operation returned.
        std::function<void(WideText)> answer;
        /// Where a replay diverged from its recording, and how.
        std::function<void(std::size_t line, const std::string& how)> diverged;
        /// Which call was refused, and why: a `create`, or one for which there is no memory.
        std::function<void(std::size_t line, const std::string& why)> refused;
        /// After every call, with the number of calls so far.
        std::function<void(std::size_t calls)> played;
        /// A text that the code page cannot hold, and the line of its call.
        std::function<void(std::size_t line, WideText text)> lost = {};
    };

    /// The monitors stay the caller's.
    Player(Settings settings, Listeners listeners, TraceMonitor& trace,
           const ExceptionMonitor& exceptions);

    /// Plays everything of `source`. False when it is malformed: then the document, when one is
    /// open, is closed, and `source` says what is wrong.
    [[nodiscard]] bool play(CallSource& source);
    /// Releases the object, which ends a document that is still open.
    void finish();
    /// How many characters of the texts played the documents could not hold.
    [[nodiscard]] std::size_t charactersLost() const noexcept { return charactersLost_; }

private:
    LateBoundDocument& document();
    /// Reads a call. A recording is in the encoding of the document that it is played into.
    [[nodiscard]] ReadResult readCall(CallSource& source, Call& call);
    void noteEncoding(const Call& call);
    void lookUpIdentifiers(LateBoundDocument& made);
    bool playCall(Call& call);
    bool tryCall(Call& call);
    bool refuses(const Call& create) const;
    void countLost(const Call& call);
    void invoke(const Operation& operation, std::span<const Argument> arguments);
    void adaptCreate(Call& call);
    ReadResult consumeRecordedLines(CallSource& source, Call& call);
    [[nodiscard]] std::string describe(std::size_t line) const;

    Settings settings_;
    Listeners listeners_;
    TraceMonitor& trace_;
    const ExceptionMonitor& exceptions_;
    DocumentEncoding encoding_;
    RecordingFit fit_;
    std::unique_ptr<LateBoundDocument> document_;
    /// The identifiers that the object gave, by row of the table of operations.
    std::array<int, operationCount> ids_{};
    std::u16string fileName_;
    std::string createLine_;
    std::size_t calls_ = 0;
    std::size_t charactersLost_ = 0;
    bool isOpen_ = false;
    bool skipping_ = false;
};

}  // namespace quillmark::replay
