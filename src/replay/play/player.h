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
#include "replay/play/late_bound_document.h"
#include "replay/play/run_record.h"

namespace quillmark::replay {

/// Plays calls into a document, input after input into the same object.
///
/// A `create` whose name the driver's code page cannot hold is refused: its document would get
/// another name, which may be that of another document. It and the calls behind it are passed
/// over, up to the next `create` or fresh object.
///
/// While it plays a recording it takes the call lines that the driver writes while it serves a
/// call off the recording, so that calls which the driver made on itself are not played twice.
class Player {
public:
    struct Settings {
        DocumentMaker makeDocument;
        /// In the driver's form; relative names of `create` count from it.
        OrxString startDirectory;
        /// Takes the place of the file name of the first `create`.
        std::optional<OrxString> outputName;
        /// `trace` is called with it first, for each object.
        std::optional<std::int16_t> traceLevel;
    };
    /// What the player tells while it plays; each may be empty.
    struct Listeners {
        /// A text that an operation answered with.
        std::function<void(WideText)> answer;
        /// Where a replay diverged from its recording, and how.
        std::function<void(std::size_t line, const std::string& how)> diverged;
        /// Which call of `create` was refused, and why.
        std::function<void(std::size_t line, const std::string& why)> refused;
        /// After every call, with the number of calls so far.
        std::function<void(std::size_t calls)> played;
    };

    /// The records stay the caller's.
    Player(Settings settings, Listeners listeners, HeardTrace& trace,
           const HeardExceptions& exceptions);

    /// Plays everything of `source`. False when it is malformed: then the document, when one is
    /// open, is closed, and `source` says what is wrong.
    [[nodiscard]] bool play(CallSource& source);
    /// Lets go of the object, which ends a document that is still open.
    void finish();
    /// How many characters of the texts played the driver's code page could not hold.
    [[nodiscard]] std::size_t charactersLost() const noexcept { return charactersLost_; }

private:
    LateBoundDocument& document();
    void learnIdentifiers();
    bool playCall(Call& call);
    bool refuses(const Call& create) const;
    void countLost(std::span<const Argument> arguments);
    void invoke(const Operation& operation, std::span<const Argument> arguments);
    void adaptCreate(Call& call);
    ReadResult consumeRecordedLines(CallSource& source, Call& call);
    [[nodiscard]] std::string describe(std::size_t line) const;

    Settings settings_;
    Listeners listeners_;
    HeardTrace& trace_;
    const HeardExceptions& exceptions_;
    std::unique_ptr<LateBoundDocument> document_;
    /// Identifiers as the object told them, by the row of the table.
    std::array<int, operationCount> ids_{};
    std::u16string fileName_;
    std::string createLine_;
    std::size_t calls_ = 0;
    std::size_t charactersLost_ = 0;
    bool isOpen_ = false;
    bool passesOver_ = false;
};

}  // namespace quillmark::replay
