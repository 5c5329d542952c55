#include "whole_document.h"

#include <gtest/gtest.h>

#include "driver/operation_table.h"

namespace quillmark::testing {
namespace {

using namespace std::string_literals;
using Arguments = std::vector<CallArgument>;
using TableCall = HRESULT (*)(::IDocument&, const Arguments&, Text&);

const std::map<std::string, TableCall>& tableCalls() {
    static const std::map<std::string, TableCall> calls = {{"create",
                                                            [](::IDocument& d, const Arguments& a,
                                                               Text&) {
                                                                return d.create(
                                                                    Text(std::get<std::u16string>(
                                                                             a[0]))
                                                                        .get());
                                                            }},
                                                           {"close",
                                                            [](::IDocument& d, const Arguments&,
                                                               Text&) { return d.close(); }},
                                                           {"insertText",
                                                            [](::IDocument& d, const Arguments& a,
                                                               Text&) {
                                                                return d.insertText(
                                                                    Text(std::get<std::u16string>(
                                                                             a[0]))
                                                                        .get());
                                                            }},
                                                           {"insertEndl",
                                                            [](::IDocument& d, const Arguments&,
                                                               Text&) { return d.insertEndl(); }},
                                                           {"insertDiagram",
                                                            [](::IDocument& d, const Arguments& a,
                                                               Text&) {
                                                                return d.insertDiagram(
                                                                    std::get<std::int32_t>(a[0]),
                                                                    std::get<std::int16_t>(a[1]),
                                                                    std::get<std::int16_t>(a[2]));
                                                            }},
                                                           {"insertPageBreak",
                                                            [](::IDocument& d, const Arguments&,
                                                               Text&) {
                                                                return d.insertPageBreak();
                                                            }},
                                                           {"insertField",
                                                            [](::IDocument& d, const Arguments& a,
                                                               Text&) {
                                                                return d.insertField(
                                                                    std::get<std::int16_t>(a[0]));
                                                            }},
                                                           {"startHeader",
                                                            [](::IDocument& d, const Arguments&,
                                                               Text&) { return d.startHeader(); }},
                                                           {"endHeader",
                                                            [](::IDocument& d, const Arguments&,
                                                               Text&) { return d.endHeader(); }},
                                                           {"startFooter",
                                                            [](::IDocument& d, const Arguments&,
                                                               Text&) { return d.startFooter(); }},
                                                           {"endFooter",
                                                            [](::IDocument& d, const Arguments&,
                                                               Text&) { return d.endFooter(); }},
                                                           {"setStyle",
                                                            [](::IDocument& d, const Arguments& a,
                                                               Text&) {
                                                                return d.setStyle(
                                                                    Text(std::get<std::u16string>(
                                                                             a[0]))
                                                                        .get());
                                                            }},
                                                           {"setFontName",
                                                            [](::IDocument& d, const Arguments& a,
                                                               Text&) {
                                                                return d.setFontName(
                                                                    Text(std::get<std::u16string>(
                                                                             a[0]))
                                                                        .get());
                                                            }},
                                                           {"setOption",
                                                            [](::IDocument& d, const Arguments& a,
                                                               Text&) {
                                                                return d.setOption(
                                                                    Text(std::get<std::u16string>(
                                                                             a[0]))
                                                                        .get(),
                                                                    Text(std::get<std::u16string>(
                                                                             a[1]))
                                                                        .get());
                                                            }},
                                                           {"trace",
                                                            [](::IDocument& d, const Arguments& a,
                                                               Text&) {
                                                                return d.trace(
                                                                    std::get<std::int16_t>(a[0]));
                                                            }},
                                                           {"getPropPages",
                                                            [](::IDocument& d, const Arguments&,
                                                               Text& out) {
                                                                return d.getPropPages(
                                                                    out.receive());
                                                            }},
                                                           {"start",
                                                            [](::IDocument& d, const Arguments&,
                                                               Text&) { return d.start(); }},
                                                           {"stop",
                                                            [](::IDocument& d, const Arguments&,
                                                               Text&) { return d.stop(); }},
                                                           {"showLast",
                                                            [](::IDocument& d, const Arguments&,
                                                               Text&) { return d.showLast(); }},
                                                           {"setFontSize",
                                                            [](::IDocument& d, const Arguments& a,
                                                               Text&) {
                                                                return d.setFontSize(
                                                                    std::get<std::int16_t>(a[0]));
                                                            }},
                                                           {"setFontAttribute",
                                                            [](::IDocument& d, const Arguments& a,
                                                               Text&) {
                                                                return d.setFontAttribute(
                                                                    std::get<std::int16_t>(a[0]),
                                                                    std::get<bool>(a[1])
                                                                        ? VARIANT_TRUE
                                                                        : VARIANT_FALSE);
                                                            }},
                                                           {"setTextAlign",
                                                            [](::IDocument& d, const Arguments& a,
                                                               Text&) {
                                                                return d.setTextAlign(
                                                                    std::get<std::int16_t>(a[0]));
                                                            }},
                                                           {"insertFile",
                                                            [](::IDocument& d, const Arguments& a,
                                                               Text&) {
                                                                return d.insertFile(
                                                                    Text(std::get<std::u16string>(
                                                                             a[0]))
                                                                        .get(),
                                                                    std::get<std::int16_t>(a[1]));
                                                            }},
                                                           {"getDocType",
                                                            [](::IDocument& d, const Arguments&,
                                                               Text& out) {
                                                                return d.getDocType(out.receive());
                                                            }},
                                                           {"overrideRegistry",
                                                            [](::IDocument& d, const Arguments& a,
                                                               Text&) {
                                                                return d.overrideRegistry(
                                                                    Text(std::get<std::u16string>(
                                                                             a[0]))
                                                                        .get(),
                                                                    Text(std::get<std::u16string>(
                                                                             a[1]))
                                                                        .get(),
                                                                    Text(std::get<std::u16string>(
                                                                             a[2]))
                                                                        .get(),
                                                                    std::get<std::int16_t>(a[3]));
                                                            }},
                                                           {"insertTOC",
                                                            [](::IDocument& d, const Arguments&,
                                                               Text&) { return d.insertTOC(); }},
                                                           {"startTable",
                                                            [](::IDocument& d, const Arguments&,
                                                               Text&) { return d.startTable(); }},
                                                           {"endTable",
                                                            [](::IDocument& d, const Arguments&,
                                                               Text&) { return d.endTable(); }},
                                                           {"addCell",
                                                            [](::IDocument& d, const Arguments&,
                                                               Text&) { return d.addCell(); }},
                                                           {"addRow",
                                                            [](::IDocument& d, const Arguments&,
                                                               Text&) { return d.addRow(); }},
                                                           {"insertMark",
                                                            [](::IDocument& d, const Arguments& a,
                                                               Text&) {
                                                                return d.insertMark(
                                                                    std::get<std::int32_t>(a[0]),
                                                                    std::get<bool>(a[1])
                                                                        ? VARIANT_TRUE
                                                                        : VARIANT_FALSE);
                                                            }},
                                                           {"startTOCEntry",
                                                            [](::IDocument& d, const Arguments&,
                                                               Text&) {
                                                                return d.startTOCEntry();
                                                            }},
                                                           {"endTOCEntry",
                                                            [](::IDocument& d, const Arguments&,
                                                               Text&) { return d.endTOCEntry(); }},
                                                           {"insertImage",
                                                            [](::IDocument& d, const Arguments& a,
                                                               Text&) {
                                                                return d.insertImage(
                                                                    Text(std::get<std::u16string>(
                                                                             a[0]))
                                                                        .get(),
                                                                    Text(std::get<std::u16string>(
                                                                             a[1]))
                                                                        .get());
                                                            }},
                                                           {"setOrientation",
                                                            [](::IDocument& d, const Arguments& a,
                                                               Text&) {
                                                                return d.setOrientation(
                                                                    std::get<std::int16_t>(a[0]));
                                                            }},
                                                           {"setTableRowHeight",
                                                            [](::IDocument& d, const Arguments& a,
                                                               Text&) {
                                                                return d.setTableRowHeight(
                                                                    std::get<std::int32_t>(a[0]));
                                                            }},
                                                           {"insertTag",
                                                            [](::IDocument& d, const Arguments& a,
                                                               Text&) {
                                                                return d.insertTag(
                                                                    Text(std::get<std::u16string>(
                                                                             a[0]))
                                                                        .get());
                                                            }},
                                                           {"insertXref",
                                                            [](::IDocument& d, const Arguments& a,
                                                               Text&) {
                                                                return d.insertXref(
                                                                    Text(std::get<std::u16string>(
                                                                             a[0]))
                                                                        .get(),
                                                                    Text(std::get<std::u16string>(
                                                                             a[1]))
                                                                        .get());
                                                            }},
                                                           {"startFile",
                                                            [](::IDocument& d, const Arguments& a,
                                                               Text&) {
                                                                return d.startFile(
                                                                    Text(std::get<std::u16string>(
                                                                             a[0]))
                                                                        .get());
                                                            }},
                                                           {"insertLocate",
                                                            [](::IDocument& d, const Arguments&,
                                                               Text&) { return d.insertLocate(); }},
                                                           {"pushDirectory",
                                                            [](::IDocument& d, const Arguments& a,
                                                               Text&) {
                                                                return d.pushDirectory(
                                                                    Text(std::get<std::u16string>(
                                                                             a[0]))
                                                                        .get());
                                                            }},
                                                           {"popDirectory",
                                                            [](::IDocument& d, const Arguments&,
                                                               Text&) {
                                                                return d.popDirectory();
                                                            }}};
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
