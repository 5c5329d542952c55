#include "replay/input/recorded_call.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <utility>

#include "platform/text_encoding.h"

namespace quillmark::replay {

namespace {

constexpr std::string_view callEnd = ");";
constexpr std::string_view textEnd = "\");";
constexpr std::string_view between = "\",\"";
constexpr std::string_view digits = "0123456789";

/// Operations that write no call line.
constexpr std::array<std::string_view, 15> silent = {
    "insertDiagram",     "trace",      "getPropPages",     "start",         "stop",
    "showLast",          "getDocType", "overrideRegistry", "insertMark",    "setOrientation",
    "setTableRowHeight", "startFile",  "insertLocate",     "pushDirectory", "popDirectory"};

constexpr std::array<std::string_view, 6> reportOpenings = {"ERR",
                                                            "WARNING: ",
                                                            "created bookmark:",
                                                            "Unresolved references on page ",
                                                            "Exception throw: ",
                                                            "Exception catch: "};

/// The words for the codes of font attributes.
constexpr std::array<std::pair<std::string_view, std::int64_t>, 5> attributeWords = {{
    {"DocBold,", 1},
    {"DocItalic,", 2},
    {"DocUnderline,", 4},
    {"DocStrike,", 8},
    // An unknown code has no word. The driver treats all of them alike.
    {"", 0},
}};

RecordedForm formOf(const Operation& operation) noexcept {
    const std::span<const Parameter> parameters = operation.parameters;
    if (parameters.empty()) {
        return RecordedForm::plain;
    }
    const bool two = parameters.size() > 1;
    if (parameters.front().kind != ParameterKind::string) {
        return two ? RecordedForm::attribute : RecordedForm::number;
    }
    if (!two) {
        return RecordedForm::text;
    }
    return parameters.back().kind == ParameterKind::string ? RecordedForm::twoTexts
                                                           : RecordedForm::textAndNumber;
}

bool readShort(std::string_view text, Call& call, std::size_t position) {
    std::int16_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    call.arguments.at(position) = std::int64_t{number};
    return error == std::errc() && end == text.data() + text.size();
}

bool readAttribute(std::string_view text, Call& call) {
    for (const auto& [word, code] : attributeWords) {
        if (text.starts_with(word)) {
            const std::string_view value = text.substr(word.size());
            call.arguments[0] = code;
            call.arguments[1] = value == "TRUE";
            return value == "TRUE" || value == "FALSE";
        }
    }
    return false;
}

void readText(std::string_view text, RecordedTexts& texts, Call& call, std::size_t position) {
    texts.at(position) = TextEncoding::current().toUtf16(text);
    call.arguments.at(position) = WideText(texts.at(position));
}

/// Finds the end of the first of two texts. A text may contain the separator, so this is a guess:
/// the second text of a cross-reference and the first text of other operations are names, in which
/// the separator is unlikely.
std::size_t splitAt(std::string_view inner, const Operation& operation) noexcept {
    static const Operation* const insertXref = findOperation("insertXref");
    return &operation == insertXref ? inner.rfind(between) : inner.find(between);
}

/// The position of the closing quote in `"…",NUMBER`.
std::size_t quoteBeforeNumber(std::string_view text) noexcept {
    std::size_t end = text.find_last_not_of(digits);
    if (end == std::string_view::npos || end + 1 == text.size()) {
        return std::string_view::npos;
    }
    if (text[end] == '-' && end > 0) {
        --end;
    }
    return end > 0 && text[end] == ',' && text[end - 1] == '"' ? end - 1 : std::string_view::npos;
}

}  // namespace

std::optional<RecordedOperation> recordedOperation(std::string_view line) noexcept {
    if (!line.starts_with(callOpening)) {
        return std::nullopt;
    }
    const std::size_t open = line.substr(0, openingSize).find('(');
    if (open == std::string_view::npos) {
        return std::nullopt;
    }
    const std::string_view name = line.substr(callOpening.size(), open - callOpening.size());
    const Operation* const operation = findOperation(name);
    if (operation == nullptr || std::ranges::find(silent, name) != silent.end()) {
        return std::nullopt;
    }
    return RecordedOperation{operation, formOf(*operation), open + 1};
}

bool isReportLine(std::string_view line) noexcept {
    return std::ranges::any_of(
        reportOpenings, [line](std::string_view opening) { return line.starts_with(opening); });
}

/// Whether the arguments contain the separator of two texts, without counting the first and the
/// last quote.
bool CallEnd::hasTwoTexts(std::string_view arguments) noexcept {
    const std::string_view searched = arguments.substr(0, arguments.size() - textEnd.size());
    const std::size_t found = searched.find(between, searched_);
    const std::size_t missing = std::max(searched.size(), between.size()) - between.size() + 1;
    searched_ = found != std::string_view::npos ? found : std::max(searched_, missing);
    return found != std::string_view::npos;
}

bool CallEnd::isAtEndOf(std::string_view text) noexcept {
    if (!text.ends_with(callEnd)) {
        return false;
    }
    const std::string_view arguments = text.substr(std::min(what_.arguments, text.size()));
    switch (what_.form) {
        case RecordedForm::text:
            // The opening quote is not the closing one.
            return arguments.size() > textEnd.size() && arguments.ends_with(textEnd);
        case RecordedForm::twoTexts:
            return arguments.ends_with(textEnd) && hasTwoTexts(arguments);
        case RecordedForm::textAndNumber: {
            const std::size_t quote =
                quoteBeforeNumber(arguments.substr(0, arguments.size() - callEnd.size()));
            return quote != std::string_view::npos && quote > 0;
        }
        default:
            return true;
    }
}

std::string parseRecorded(std::string_view line, const RecordedOperation& what,
                          RecordedTexts& texts, Call& call) {
    std::string_view inner = line.substr(what.arguments);
    inner.remove_suffix(callEnd.size());
    bool fine = true;
    // The texts of the call before may be very long.
    texts = {};
    call.argumentCount = what.operation->parameters.size();
    switch (what.form) {
        case RecordedForm::plain:
            fine = inner.empty();
            break;
        case RecordedForm::number:
            fine = readShort(inner, call, 0);
            break;
        case RecordedForm::attribute:
            fine = readAttribute(inner, call);
            break;
        case RecordedForm::text:
            readText(inner.substr(1, inner.size() - 2), texts, call, 0);
            break;
        case RecordedForm::twoTexts: {
            const std::string_view both = inner.substr(1, inner.size() - 2);
            const std::size_t split = splitAt(both, *what.operation);
            readText(both.substr(0, split), texts, call, 0);
            readText(both.substr(split + between.size()), texts, call, 1);
            break;
        }
        case RecordedForm::textAndNumber: {
            const std::size_t quote = quoteBeforeNumber(inner);
            readText(inner.substr(1, quote - 1), texts, call, 0);
            fine = readShort(inner.substr(quote + 2), call, 1);
            break;
        }
    }
    return fine ? std::string() : std::string("wrong arguments for ") + what.operation->name;
}

}  // namespace quillmark::replay
