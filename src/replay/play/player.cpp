#include "replay/play/player.h"

#include <algorithm>
#include <new>
#include <utility>

#include "foundation/utf8.h"
#include "platform/files/path_text.h"
#include "platform/files/sys_directory.h"
#include "platform/sys_text.h"
#include "replay/input/bad_input.h"

namespace quillmark::replay {

namespace {

const Operation& operationOf(const char* name) {
    return *findOperation(name);
}

const Operation& createOperation() {
    static const Operation& operation = operationOf("create");
    return operation;
}

const Operation& closeOperation() {
    static const Operation& operation = operationOf("close");
    return operation;
}

const Operation& overrideOperation() {
    static const Operation& operation = operationOf("overrideRegistry");
    return operation;
}

std::string quoted(std::string_view text, const TextEncoding& encoding) {
    std::size_t most = 120;
    if (text.size() <= most) {
        return encoding.toUtf8(text);
    }
    while (most > 0 && !encoding.beginsCharacter(static_cast<unsigned char>(text[most]))) {
        --most;
    }
    return encoding.toUtf8(text.substr(0, most)) + " ...";
}

std::string nameProblem(WideText name, const TextEncoding& encoding) {
    const bool isUtf8 = &encoding == &TextEncoding::utf8();
    const std::string holder =
        isUtf8 ? std::string("UTF-8")
               : "the driver's 8-bit code page (" + SysText::codePageName() + ")";
    return "create: " + holder + " cannot hold the name \"" + utf8::fromUtf16(name) +
           "\"; all calls up to the next create or new are skipped" +
           (isUtf8 ? "" : " (with --set Html.CharSet=UTF-8 it keeps its name)");
}

}  // namespace

Player::Player(Settings settings, Listeners listeners, TraceMonitor& trace,
               const ExceptionMonitor& exceptions)
    : settings_(std::move(settings)),
      listeners_(std::move(listeners)),
      trace_(trace),
      exceptions_(exceptions),
      encoding_(settings_.store) {}

LateBoundDocument& Player::document() {
    if (document_ == nullptr) {
        encoding_.startObject();
        std::unique_ptr<LateBoundDocument> made = settings_.makeDocument();
        lookUpIdentifiers(*made);
        document_ = std::move(made);
        if (settings_.traceLevel) {
            const Argument level = std::int64_t{*settings_.traceLevel};
            invoke(operationOf("trace"), {&level, 1});
        }
    }
    return *document_;
}

void Player::lookUpIdentifiers(LateBoundDocument& made) {
    std::ranges::transform(operations(), ids_.begin(), [&](const Operation& operation) {
        const int id = made.idOf(operation.name);
        if (id == 0) {
            throw BadInput(std::string("the component does not have the operation ") +
                           operation.name);
        }
        return id;
    });
}

void Player::finish() {
    const TextEncoding::Scope scope(encoding_.current());
    document_.reset();
    isOpen_ = false;
    skipping_ = false;
}

void Player::invoke(const Operation& operation, std::span<const Argument> arguments) {
    LateBoundDocument& target = document();
    // The services that the driver calls now speak the document's encoding.
    const TextEncoding::Scope scope(encoding_.current());
    const int id = ids_[static_cast<std::size_t>(operation.dispatchId - 1)];
    if (arguments.size() == operation.parameters.size()) {
        target.invoke(id, arguments);
        return;
    }
    std::u16string text;
    const Argument place = &text;
    target.invoke(id, {&place, 1});
    if (listeners_.answer) {
        listeners_.answer(text);
    }
}

/// Replaces the name in a call of `create`, and in its recorded line, by the one that the document
/// will have. An absolute name stays exactly as it was given.
void Player::adaptCreate(Call& call) {
    const TextEncoding& encoding = encoding_.next();
    OrxString name = encoding.toBytes(std::get<WideText>(call.arguments[0]));
    const bool replaced = settings_.outputName.has_value();
    if (replaced) {
        name = encoding.fromUtf8(*std::exchange(settings_.outputName, std::nullopt));
    }
    if (!path_text::isAbsolute(name)) {
        name = SysDirectory::getSpecificPath(encoding.fromUtf8(settings_.startDirectory), name);
    } else if (!replaced) {
        return;
    }
    fileName_ = encoding.toUtf16(name);
    call.arguments[0] = WideText(fileName_);
    if (!call.recorded.empty()) {
        createLine_ = "dochtml->create(\"" + name.str() + "\");";
        call.recorded = createLine_;
    }
}

bool Player::refuses(const Call& create) const {
    const WideText name = std::get<WideText>(create.arguments[0]);
    const TextEncoding& encoding = encoding_.next();
    if (settings_.outputName || encoding.holds(name)) {
        return false;
    }
    if (listeners_.refused) {
        listeners_.refused(create.line, nameProblem(name, encoding));
    }
    return true;
}

void Player::countLost(const Call& call) {
    if (call.isAscii) {
        return;
    }
    const TextEncoding& encoding = encoding_.current();
    const TextEncoding::Scope scope(encoding);
    for (const Argument& argument : call.given()) {
        const auto* const text = std::get_if<WideText>(&argument);
        const std::size_t lost = text != nullptr ? encoding.countLost(*text) : 0;
        charactersLost_ += lost;
        if (lost > 0 && listeners_.lost) {
            listeners_.lost(call.line, *text);
        }
    }
}

void Player::noteEncoding(const Call& call) {
    // A fresh object reads the settings, so it must be there first.
    document();
    if (call.operation == &createOperation()) {
        encoding_.create();
    } else if (call.operation == &overrideOperation()) {
        encoding_.override(call);
    }
    if (call.recorded.empty()) {
        return;
    }
    const TextEncoding& encoding = encoding_.current();
    if (fit_.isWrong(call.recorded, encoding) && listeners_.diverged) {
        listeners_.diverged(call.line, RecordingFit::problem(encoding));
    }
}

ReadResult Player::readCall(CallSource& source, Call& call) {
    const TextEncoding::Scope scope(isOpen_ ? encoding_.current() : encoding_.next());
    return source.next(call);
}

/// False for a call that is skipped.
bool Player::playCall(Call& call) {
    if (call.operation == nullptr) {
        finish();
        document();
        return true;
    }
    const bool opens = call.operation == &createOperation();
    if (opens) {
        skipping_ = refuses(call);
    }
    if (skipping_) {
        return false;
    }
    if (opens) {
        adaptCreate(call);
    }
    noteEncoding(call);
    countLost(call);
    const std::size_t caught = exceptions_.caught();
    invoke(*call.operation, call.given());
    if (opens) {
        isOpen_ = exceptions_.caught() == caught;
    } else if (call.operation == &closeOperation()) {
        isOpen_ = false;
    }
    return true;
}

/// False for a call that is skipped. Without memory for its arguments a call is lost; after a lost
/// `create` the calls up to the next one would go to another document.
bool Player::tryCall(Call& call) {
    try {
        return playCall(call);
    } catch (const std::bad_alloc&) {
        skipping_ = skipping_ || call.operation == &createOperation();
        if (listeners_.refused) {
            listeners_.refused(call.line, "out of memory");
        }
        return false;
    }
}

/// Describes a line that the driver wrote, for a message.
std::string Player::describe(std::size_t line) const {
    return line < trace_.calls().size()
               ? "the driver called " +
                     quoted(trace_.calls()[static_cast<std::uint32_t>(line)], encoding_.current())
               : std::string("the driver wrote no line");
}

/// Skips the lines of the recording that the driver wrote for `call` and reads the next call that
/// the host made. A line that is missing in the recording is ignored, so that the lines after it
/// still match.
ReadResult Player::consumeRecordedLines(CallSource& source, Call& call) {
    const PackedStrings& heard = trace_.calls();
    const auto report = [this](std::size_t line, const std::string& how) {
        if (listeners_.diverged) {
            listeners_.diverged(line, how);
        }
    };
    bool diverged = heard.size() == 0 || heard[0] != call.recorded;
    if (diverged) {
        report(call.line, describe(0) + " for " + quoted(call.recorded, encoding_.current()));
    }
    const std::size_t servedLine = call.line;
    ReadResult result = readCall(source, call);
    for (std::uint32_t i = 1; i < heard.size(); ++i) {
        const bool same = result == ReadResult::call && heard[i] == call.recorded;
        // A malformed line is reported when it is the next call.
        if (!same && !diverged && result != ReadResult::malformed) {
            diverged = true;
            const bool more = result == ReadResult::call;
            report(more ? call.line : servedLine,
                   describe(i) +
                       (more ? ", the recording has " + quoted(call.recorded, encoding_.current())
                             : std::string(", the recording ends")));
        }
        if (same) {
            result = readCall(source, call);
        }
    }
    return result;
}

bool Player::play(CallSource& source) {
    Call call;
    ReadResult result = readCall(source, call);
    while (result == ReadResult::call) {
        trace_.forgetCalls();
        const bool played = tryCall(call);
        ++calls_;
        if (listeners_.played) {
            listeners_.played(calls_);
        }
        result = played && !call.recorded.empty() ? consumeRecordedLines(source, call)
                                                  : readCall(source, call);
    }
    if (result == ReadResult::malformed && isOpen_) {
        invoke(closeOperation(), {});
        isOpen_ = false;
    }
    return result == ReadResult::end;
}

}  // namespace quillmark::replay
