#include "replay/input/call_stream_reader.h"

#include <algorithm>
#include <cstring>
#include <memory>
#include <string>

#include "foundation/utf8.h"
#include "replay/input/call_builder.h"
#include "replay/input/json_text.h"
#include "replay/input/rapidjson_reader.h"

namespace quillmark::replay {

namespace {

constexpr std::string_view blank = " \t\r";

bool isBlank(std::span<const char> line) noexcept {
    return (line.empty() || line.front() != '[') &&
           std::string_view(line.data(), line.size()).find_first_not_of(blank) ==
               std::string_view::npos;
}

}  // namespace

/// Turns the JSON events of one line into a call. An event that does not fit sets `problem_` and
/// ends the line.
class CallStreamReader::Parser : public rapidjson::BaseReaderHandler<rapidjson::UTF8<>, Parser> {
public:
    bool parse(std::span<char> line, Call& call) {
        call_ = &call;
        const std::size_t size = foldLoneSurrogates(line);
        start(size, size != line.size() ? utf8::LoneSurrogates::accepted
                                        : utf8::LoneSurrogates::malformed);
        line.data()[size] = '\0';  // the byte after the line belongs to the buffer too
        rapidjson::InsituStringStream stream(line.data());
        const rapidjson::ParseResult result =
            reader_.Parse<rapidjson::kParseInsituFlag>(stream, *this);
        if (result.IsError() && problem_.empty()) {
            problem_ = std::string("malformed JSON: ") + rapidjson::GetParseError_En(result.Code());
            problem_.erase(problem_.find_last_not_of('.') + 1);
        } else if (!result.IsError() && stream.Tell() != size) {
            problem_ = "malformed JSON: a zero byte";
        }
        return problem_.empty();
    }

    [[nodiscard]] const std::string& problem() const noexcept { return problem_; }

    bool StartArray() {
        if (isOpen_) {
            return builder_.addOther(problem_);
        }
        isOpen_ = true;
        return true;
    }
    bool EndArray(rapidjson::SizeType /*count*/) { return builder_.finish(problem_); }
    bool String(const char* text, rapidjson::SizeType size, bool /*copy*/) {
        if (!isOpen_) {
            return Default();
        }
        if (!builder_.isNamed()) {
            return builder_.name({text, size}, problem_);
        }
        char16_t* const end = utf8::decodeStrictly({text, size}, nextUnit_, loneSurrogates_);
        if (end == nullptr) {
            problem_ = "the text is not UTF-8";
            return false;
        }
        const WideText argument(nextUnit_, static_cast<std::size_t>(end - nextUnit_));
        nextUnit_ = end;
        // A character beyond ASCII has more bytes than units.
        call_->isAscii = call_->isAscii && argument.size() == size;
        return builder_.addText(argument, problem_);
    }
    bool Bool(bool value) { return isOpen_ ? builder_.addBoolean(value, problem_) : Default(); }
    bool Int(int value) { return Int64(value); }
    bool Uint(unsigned value) { return Int64(value); }
    bool Int64(std::int64_t value) {
        return isOpen_ ? builder_.addInteger(value, problem_) : Default();
    }
    /// Everything else: null, an object, a number that is not an integer or is too large.
    bool Default() {
        if (isOpen_) {
            return builder_.addOther(problem_);
        }
        problem_ =
            "not a call: each line must be an array of the operation's name and its arguments";
        return false;
    }

private:
    void start(std::size_t lineSize, utf8::LoneSurrogates loneSurrogates) {
        problem_.clear();
        isOpen_ = false;
        builder_.start(*call_);
        call_->isAscii = true;
        loneSurrogates_ = loneSurrogates;
        makeRoomForUnits(lineSize);
        nextUnit_ = units_.get();
    }

    /// A text never has more units than its line has bytes. The old units are freed first, and the
    /// new ones are not touched before they are used, since a line may be very long.
    void makeRoomForUnits(std::size_t count) {
        if (unitCount_ < count) {
            const std::size_t grown = std::max(count, unitCount_ * 2);
            unitCount_ = 0;
            units_.reset();
            // NOLINTNEXTLINE(modernize-avoid-c-arrays): not initialized
            units_ = std::make_unique_for_overwrite<char16_t[]>(grown);
            unitCount_ = grown;
        }
    }

    JsonReader reader_;
    CallBuilder builder_;
    Call* call_ = nullptr;
    std::string problem_;
    std::unique_ptr<char16_t[]> units_;  // NOLINT(modernize-avoid-c-arrays): not initialized
    std::size_t unitCount_ = 0;
    char16_t* nextUnit_ = nullptr;
    bool isOpen_ = false;
    utf8::LoneSurrogates loneSurrogates_ = utf8::LoneSurrogates::malformed;
};

CallStreamReader::CallStreamReader(InputBuffer& input)
    : input_(input), parser_(std::make_unique<Parser>()) {}

CallStreamReader::~CallStreamReader() = default;

bool CallStreamReader::takeLine(std::span<char>& line) {
    std::size_t searched = 0;
    for (;;) {
        const std::span<char> bytes = input_.unread();
        void* const hit = std::memchr(bytes.data() + searched, '\n', bytes.size() - searched);
        if (hit != nullptr) {
            const auto size = static_cast<std::size_t>(static_cast<char*>(hit) - bytes.data());
            line = bytes.first(size);
            input_.drop(size + 1);
            return true;
        }
        searched = bytes.size();
        if (!input_.fill()) {
            line = input_.unread();
            input_.drop(line.size());
            return !line.empty();
        }
    }
}

ReadResult CallStreamReader::next(Call& call) {
    std::span<char> line;
    while (takeLine(line)) {
        ++line_;
        if (isBlank(line)) {
            continue;
        }
        call.line = line_;
        if (!parser_->parse(line, call)) {
            problem_ = parser_->problem();
            return ReadResult::malformed;
        }
        return ReadResult::call;
    }
    if (input_.failed()) {
        problem_ = unreadable;
        return ReadResult::malformed;
    }
    return ReadResult::end;
}

}  // namespace quillmark::replay
