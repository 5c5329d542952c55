#include "driver/boundary/operation_table.h"

#include <algorithm>
#include <array>
#include <limits>
#include <type_traits>
#include <utility>

namespace quillmark {

namespace {

/// A parameter's name as a template argument, so that the parameters of each operation are a
/// constant.
template <std::size_t size>
struct ParameterName {
    // Only a C array lets the compiler deduce the size from the literal.
    consteval ParameterName(const char (&literal)[size]) {  // NOLINT(modernize-avoid-c-arrays)
        std::copy_n(literal, size, text.begin());
    }
    std::array<char, size> text{};
};

template <typename T>
constexpr ParameterKind kindOf() {
    if constexpr (std::is_same_v<T, WideText>) {
        return ParameterKind::string;
    } else if constexpr (std::is_same_v<T, std::int16_t>) {
        return ParameterKind::shortInteger;
    } else if constexpr (std::is_same_v<T, std::int32_t>) {
        return ParameterKind::longInteger;
    } else if constexpr (std::is_same_v<T, bool>) {
        return ParameterKind::boolean;
    } else {
        static_assert(std::is_same_v<T, std::u16string&>);
        return ParameterKind::outString;
    }
}

template <typename T>
T valueOf(const Argument& argument) {
    if constexpr (std::is_same_v<T, WideText>) {
        return *std::get_if<WideText>(&argument);
    } else if constexpr (std::is_same_v<T, bool>) {
        const bool* const boolean = std::get_if<bool>(&argument);
        return boolean != nullptr ? *boolean : *std::get_if<std::int64_t>(&argument) != 0;
    } else if constexpr (std::is_integral_v<T>) {
        return static_cast<T>(*std::get_if<std::int64_t>(&argument));
    } else {
        return **std::get_if<std::u16string*>(&argument);
    }
}

/// Derives an operation's parameters and its call from its member function.
template <typename Method>
struct Signature;

template <typename... Types>
struct Signature<DocResult (IDocument::*)(Types...)> {
    static constexpr std::size_t count = sizeof...(Types);
    static constexpr std::size_t given =
        (std::size_t{0} + ... + (kindOf<Types>() == ParameterKind::outString ? 0 : 1));

    template <ParameterName... names>
    static constexpr std::array<Parameter, count> parameters{
        Parameter{names.text.data(), kindOf<Types>()}...};

    template <auto method>
    static DocResult call(IDocument& document,
                          [[maybe_unused]] std::span<const Argument> arguments) {
        return [&]<std::size_t... position>(std::index_sequence<position...>) {
            return (document.*method)(valueOf<Types>(arguments[position])...);
        }
        (std::make_index_sequence<count>());
    }
};

template <auto method, ParameterName... names>
constexpr Operation operation(int dispatchId, const char* name) {
    using Form = Signature<decltype(method)>;
    static_assert(Form::count == sizeof...(names), "every parameter has a name");
    return {dispatchId, name, Form::template parameters<names...>, Form::given,
            &Form::template call<method>};
}

constexpr std::array<Operation, operationCount> table{
    operation<&IDocument::create, "fileName">(1, "create"),
    operation<&IDocument::close>(2, "close"),
    operation<&IDocument::insertText, "text">(3, "insertText"),
    operation<&IDocument::insertEndl>(4, "insertEndl"),
    operation<&IDocument::insertDiagram, "ptr", "width", "height">(5, "insertDiagram"),
    operation<&IDocument::insertPageBreak>(6, "insertPageBreak"),
    operation<&IDocument::insertField, "field">(7, "insertField"),
    operation<&IDocument::startHeader>(8, "startHeader"),
    operation<&IDocument::endHeader>(9, "endHeader"),
    operation<&IDocument::startFooter>(10, "startFooter"),
    operation<&IDocument::endFooter>(11, "endFooter"),
    operation<&IDocument::setStyle, "style">(12, "setStyle"),
    operation<&IDocument::setFontName, "name">(13, "setFontName"),
    operation<&IDocument::setOption, "option", "value">(14, "setOption"),
    operation<&IDocument::trace, "level">(15, "trace"),
    operation<&IDocument::getPropPages, "bstrCLSID">(16, "getPropPages"),
    operation<&IDocument::start>(17, "start"),
    operation<&IDocument::stop>(18, "stop"),
    operation<&IDocument::showLast>(19, "showLast"),
    operation<&IDocument::setFontSize, "size">(20, "setFontSize"),
    operation<&IDocument::setFontAttribute, "att", "value">(21, "setFontAttribute"),
    operation<&IDocument::setTextAlign, "textAlign">(22, "setTextAlign"),
    operation<&IDocument::insertFile, "fileName", "insertAsType">(23, "insertFile"),
    operation<&IDocument::getDocType, "docType">(24, "getDocType"),
    operation<&IDocument::overrideRegistry, "group", "name", "value", "valueType">(
        25, "overrideRegistry"),
    operation<&IDocument::insertTOC>(26, "insertTOC"),
    operation<&IDocument::startTable>(27, "startTable"),
    operation<&IDocument::endTable>(28, "endTable"),
    operation<&IDocument::addCell>(29, "addCell"),
    operation<&IDocument::addRow>(30, "addRow"),
    operation<&IDocument::insertMark, "ptr", "isPrimary">(31, "insertMark"),
    operation<&IDocument::startTOCEntry>(32, "startTOCEntry"),
    operation<&IDocument::endTOCEntry>(33, "endTOCEntry"),
    operation<&IDocument::insertImage, "imageFileName", "fileOrUrl">(34, "insertImage"),
    operation<&IDocument::setOrientation, "docorient">(35, "setOrientation"),
    operation<&IDocument::setTableRowHeight, "points">(36, "setTableRowHeight"),
    operation<&IDocument::insertTag, "tagName">(37, "insertTag"),
    operation<&IDocument::insertXref, "text", "tagName">(38, "insertXref"),
    operation<&IDocument::startFile, "fileName">(39, "startFile"),
    operation<&IDocument::insertLocate>(40, "insertLocate"),
    operation<&IDocument::pushDirectory, "directoryName">(41, "pushDirectory"),
    operation<&IDocument::popDirectory>(42, "popDirectory"),
};

constexpr bool isInOrder() {
    int expected = 0;
    return std::ranges::all_of(table,
                               [&](const Operation& row) { return row.dispatchId == ++expected; });
}
static_assert(isInOrder(), "the n-th operation has dispatch identifier n");

/// The names in the order of their lengths, and where each length begins. A search compares only
/// names of the right length; `bench` shows what it costs beside a call.
struct NamesByLength {
    static constexpr std::size_t longest = 20;

    struct Row {
        std::string_view name;
        std::size_t position = 0;
    };
    std::array<Row, operationCount> rows;
    std::array<std::size_t, longest + 2> starts{};
};

constexpr NamesByLength byLength = [] {
    NamesByLength all;
    for (std::size_t i = 0; i < table.size(); ++i) {
        all.rows[i] = {table[i].name, i};
    }
    std::ranges::sort(all.rows, {}, [](const auto& row) { return row.name.size(); });
    for (std::size_t length = 0; length < all.starts.size(); ++length) {
        all.starts[length] = static_cast<std::size_t>(std::ranges::count_if(
            all.rows, [length](const auto& row) { return row.name.size() < length; }));
    }
    return all;
}();
static_assert(byLength.starts.back() == operationCount, "no name is longer than the longest");

template <typename T>
bool fits(std::int64_t value) noexcept {
    return value >= std::numeric_limits<T>::min() && value <= std::numeric_limits<T>::max();
}

bool accepts(ParameterKind kind, const Argument& argument) noexcept {
    const std::int64_t* const integer = std::get_if<std::int64_t>(&argument);
    switch (kind) {
        case ParameterKind::string:
            return std::holds_alternative<WideText>(argument);
        case ParameterKind::shortInteger:
            return integer != nullptr && fits<std::int16_t>(*integer);
        case ParameterKind::longInteger:
            return integer != nullptr && fits<std::int32_t>(*integer);
        case ParameterKind::boolean:
            return integer != nullptr || std::holds_alternative<bool>(argument);
        case ParameterKind::outString: {
            std::u16string* const* const out = std::get_if<std::u16string*>(&argument);
            return out != nullptr && *out != nullptr;
        }
    }
    return false;
}

}  // namespace

std::span<const Operation> operations() noexcept {
    return table;
}

const Operation* findOperation(std::string_view name) noexcept {
    if (name.size() > NamesByLength::longest) {
        return nullptr;
    }
    for (std::size_t i = byLength.starts[name.size()]; i < byLength.starts[name.size() + 1]; ++i) {
        if (byLength.rows[i].name == name) {
            return &table[byLength.rows[i].position];
        }
    }
    return nullptr;
}

const Operation* findOperation(int dispatchId) noexcept {
    return dispatchId >= 1 && dispatchId <= operationCount
               ? &table[static_cast<std::size_t>(dispatchId - 1)]
               : nullptr;
}

InvokeStatus invoke(IDocument& document, int dispatchId, std::span<const Argument> arguments,
                    std::size_t* badArgument) {
    const Operation* const row = findOperation(dispatchId);
    if (row == nullptr) {
        return InvokeStatus::unknownOperation;
    }
    if (arguments.size() != row->parameters.size()) {
        return InvokeStatus::wrongArgumentCount;
    }
    for (std::size_t position = 0; position < arguments.size(); ++position) {
        if (!accepts(row->parameters[position].kind, arguments[position])) {
            if (badArgument != nullptr) {
                *badArgument = position;
            }
            return InvokeStatus::wrongArgumentKind;
        }
    }
    row->call(document, arguments);
    return InvokeStatus::done;
}

}  // namespace quillmark
