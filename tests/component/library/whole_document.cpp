#include "whole_document.h"

#include <gtest/gtest.h>

#include <functional>
#include <utility>

#include "driver/boundary/operation_table.h"

namespace quillmark::testing {
namespace {

using namespace std::string_literals;
using Arguments = std::vector<CallArgument>;
using TableCall = std::function<HRESULT(::IDocument&, const Arguments&, Text&)>;

/// An argument of a step as the table of operations takes it.
class TableArgument {
public:
    TableArgument(const CallArgument& argument, Text& out) : argument_(argument), out_(out) {
        if (const auto* text = std::get_if<std::u16string>(&argument_)) {
            text_ = Text(*text);
        }
    }
    operator BSTR() const { return text_.get(); }
    operator BSTR*() const { return out_.receive(); }
    operator LONG() const { return std::get<std::int32_t>(argument_); }
    /// Booleans are short integers in the table.
    operator SHORT() const {
        const bool* truth = std::get_if<bool>(&argument_);
        if (truth == nullptr) {
            return std::get<std::int16_t>(argument_);
        }
        return *truth ? VARIANT_TRUE : VARIANT_FALSE;
    }

private:
    const CallArgument& argument_;
    Text& out_;
    Text text_;
};

template <typename... Parameters, std::size_t... Positions>
TableCall byTable(HRESULT (STDMETHODCALLTYPE ::IDocument::*operation)(Parameters...),
                  std::index_sequence<Positions...>) {
    return [operation](::IDocument& document, const Arguments& arguments, Text& out) {
        static_cast<void>(arguments);
        static_cast<void>(out);
        return std::invoke(operation, document,
                           static_cast<Parameters>(TableArgument(arguments.at(Positions), out))...);
    };
}

template <typename... Parameters>
TableCall byTable(HRESULT (STDMETHODCALLTYPE ::IDocument::*operation)(Parameters...)) {
    return byTable(operation, std::index_sequence_for<Parameters...>());
}

const std::map<std::string, TableCall>& tableCalls() {
    static const std::map<std::string, TableCall> calls = {
        {"create", byTable(&::IDocument::create)},
        {"close", byTable(&::IDocument::close)},
        {"insertText", byTable(&::IDocument::insertText)},
        {"insertEndl", byTable(&::IDocument::insertEndl)},
        {"insertDiagram", byTable(&::IDocument::insertDiagram)},
        {"insertPageBreak", byTable(&::IDocument::insertPageBreak)},
        {"insertField", byTable(&::IDocument::insertField)},
        {"startHeader", byTable(&::IDocument::startHeader)},
        {"endHeader", byTable(&::IDocument::endHeader)},
        {"startFooter", byTable(&::IDocument::startFooter)},
        {"endFooter", byTable(&::IDocument::endFooter)},
        {"setStyle", byTable(&::IDocument::setStyle)},
        {"setFontName", byTable(&::IDocument::setFontName)},
        {"setOption", byTable(&::IDocument::setOption)},
        {"trace", byTable(&::IDocument::trace)},
        {"getPropPages", byTable(&::IDocument::getPropPages)},
        {"start", byTable(&::IDocument::start)},
        {"stop", byTable(&::IDocument::stop)},
        {"showLast", byTable(&::IDocument::showLast)},
        {"setFontSize", byTable(&::IDocument::setFontSize)},
        {"setFontAttribute", byTable(&::IDocument::setFontAttribute)},
        {"setTextAlign", byTable(&::IDocument::setTextAlign)},
        {"insertFile", byTable(&::IDocument::insertFile)},
        {"getDocType", byTable(&::IDocument::getDocType)},
        {"overrideRegistry", byTable(&::IDocument::overrideRegistry)},
        {"insertTOC", byTable(&::IDocument::insertTOC)},
        {"startTable", byTable(&::IDocument::startTable)},
        {"endTable", byTable(&::IDocument::endTable)},
        {"addCell", byTable(&::IDocument::addCell)},
        {"addRow", byTable(&::IDocument::addRow)},
        {"insertMark", byTable(&::IDocument::insertMark)},
        {"startTOCEntry", byTable(&::IDocument::startTOCEntry)},
        {"endTOCEntry", byTable(&::IDocument::endTOCEntry)},
        {"insertImage", byTable(&::IDocument::insertImage)},
        {"setOrientation", byTable(&::IDocument::setOrientation)},
        {"setTableRowHeight", byTable(&::IDocument::setTableRowHeight)},
        {"insertTag", byTable(&::IDocument::insertTag)},
        {"insertXref", byTable(&::IDocument::insertXref)},
        {"startFile", byTable(&::IDocument::startFile)},
        {"insertLocate", byTable(&::IDocument::insertLocate)},
        {"pushDirectory", byTable(&::IDocument::pushDirectory)},
        {"popDirectory", byTable(&::IDocument::popDirectory)},
    };
    return calls;
}

std::u16string wide(const std::string& ascii) {
    return {ascii.begin(), ascii.end()};
}

std::int16_t number(int value) {
    return static_cast<std::int16_t>(value);
}

std::u16string invokeStep(::IDocument& document, DISPID id, const Step& step) {
    LateArguments arguments(step.arguments);
    EXPECT_EQ(invoke(document, id, arguments.parameters()), S_OK) << step.name;
    return std::u16string(arguments.outText());
}

}  // namespace

std::vector<Step> wholeDocument(const std::string& directory) {
    const std::u16string here = wide(directory);
    return {
        {"showLast", {}},
        {"start", {}},
        {"overrideRegistry", {u"Log"s, u"LogName"s, here + u"\\calls.log", number(0)}},
        {"overrideRegistry", {u"Html"s, u"StyleSheet"s, here + u"\\plain.css", number(0)}},
        {"overrideRegistry", {u"Html"s, u"Navig"s, u"3"s, number(2)}},
        {"trace", {number(11)}},
        {"create", {here + u"\\out\\rep.htm"}},
        {"setOption", {u"title"s, u"A title"s}},
        {"setOrientation", {number(1)}},
        {"startHeader", {}},
        {"insertField", {number(4)}},
        {"endHeader", {}},
        {"startFooter", {}},
        {"insertText", {u"At the foot"s}},
        {"endFooter", {}},
        {"insertTOC", {}},
        {"insertMark", {std::int32_t{-5}, true}},
        {"setStyle", {u"Heading 1"s}},
        {"insertText", {u"A heading"s}},
        {"insertEndl", {}},
        {"setStyle", {u"Normal"s}},
        {"setFontName", {u"Courier"s}},
        {"setFontSize", {number(14)}},
        {"setFontAttribute", {number(1), true}},
        {"setTextAlign", {number(2)}},
        {"insertTag", {u"here"s}},
        {"insertText", {u"A <text> & more"s}},
        {"insertXref", {u"to the end"s, u"the end"s}},
        {"startTable", {}},
        {"setTableRowHeight", {std::int32_t{20}}},
        {"addRow", {}},
        {"addCell", {}},
        {"insertText", {u"In a cell"s}},
        {"addCell", {}},
        {"addRow", {}},
        {"insertText", {u"In another"s}},
        {"endTable", {}},
        {"insertImage", {here + u"\\dot.gif", u""s}},
        {"insertFile", {here + u"\\notes.txt", number(1)}},
        {"startFile", {u"ignored.txt"s}},
        {"insertLocate", {}},
        {"insertDiagram", {std::int32_t{7}, number(10), number(20)}},
        {"startTOCEntry", {}},
        {"insertText", {u"An entry"s}},
        {"endTOCEntry", {}},
        {"insertPageBreak", {}},
        {"insertText", {u"On another page"s}},
        {"pushDirectory", {u"sub"s}},
        {"insertText", {u"In a directory"s}},
        {"popDirectory", {}},
        {"insertPageBreak", {}},
        {"insertTag", {u"the end"s}},
        {"insertXref", {u"to the start"s, u"here"s}},
        {"getPropPages", {OutText{}}},
        {"getDocType", {OutText{}}},
        {"stop", {}},
        {"close", {}},
    };
}

std::u16string callByTable(::IDocument& document, const Step& step) {
    Text out;
    EXPECT_EQ(tableCalls().at(step.name)(document, step.arguments, out), S_OK) << step.name;
    return std::u16string(out.view());
}

std::u16string callById(::IDocument& document, const Step& step) {
    return invokeStep(document, findOperation(step.name)->dispatchId, step);
}

std::u16string callByName(::IDocument& document, const Step& step) {
    return invokeStep(document, idOf(document, wide(step.name)), step);
}

std::u16string callDirectly(IDocument& document, const Step& step) {
    std::u16string out;
    std::vector<Argument> arguments;
    for (const CallArgument& argument : step.arguments) {
        if (const auto* text = std::get_if<std::u16string>(&argument)) {
            arguments.emplace_back(WideText(*text));
        } else if (const auto* small = std::get_if<std::int16_t>(&argument)) {
            arguments.emplace_back(std::int64_t{*small});
        } else if (const auto* large = std::get_if<std::int32_t>(&argument)) {
            arguments.emplace_back(std::int64_t{*large});
        } else if (const auto* boolean = std::get_if<bool>(&argument)) {
            arguments.emplace_back(*boolean);
        } else {
            arguments.emplace_back(&out);
        }
    }
    EXPECT_EQ(invoke(document, findOperation(step.name)->dispatchId, arguments), InvokeStatus::done)
        << step.name;
    return out;
}

}  // namespace quillmark::testing
