#include "component/object/operation_calls.h"

namespace quillmark::testing {
namespace {

using namespace std::string_literals;

std::u16string wide(const char* ascii) {
    const std::string text(ascii);
    return {text.begin(), text.end()};
}

}  // namespace

const std::vector<OperationCall>& operationCalls() {
    static const std::vector<OperationCall> calls = {
        {1,
         "create",
         {u"create 1"s},
         [](::IDocument& d) { return d.create(Text(u"create 1").get()); },
         "create(\"create 1\")"},
        {2, "close", {}, [](::IDocument& d) { return d.close(); }, "close()"},
        {3,
         "insertText",
         {u"insertText 1"s},
         [](::IDocument& d) { return d.insertText(Text(u"insertText 1").get()); },
         "insertText(\"insertText 1\")"},
        {4, "insertEndl", {}, [](::IDocument& d) { return d.insertEndl(); }, "insertEndl()"},
        {5,
         "insertDiagram",
         {std::int32_t{-500000}, std::int16_t{-501}, std::int16_t{-502}},
         [](::IDocument& d) { return d.insertDiagram(-500000, -501, -502); },
         "insertDiagram(-500000,-501,-502)"},
        {6,
         "insertPageBreak",
         {},
         [](::IDocument& d) { return d.insertPageBreak(); },
         "insertPageBreak()"},
        {7,
         "insertField",
         {std::int16_t{-700}},
         [](::IDocument& d) { return d.insertField(-700); },
         "insertField(-700)"},
        {8, "startHeader", {}, [](::IDocument& d) { return d.startHeader(); }, "startHeader()"},
        {9, "endHeader", {}, [](::IDocument& d) { return d.endHeader(); }, "endHeader()"},
        {10, "startFooter", {}, [](::IDocument& d) { return d.startFooter(); }, "startFooter()"},
        {11, "endFooter", {}, [](::IDocument& d) { return d.endFooter(); }, "endFooter()"},
        {12,
         "setStyle",
         {u"setStyle 1"s},
         [](::IDocument& d) { return d.setStyle(Text(u"setStyle 1").get()); },
         "setStyle(\"setStyle 1\")"},
        {13,
         "setFontName",
         {u"setFontName 1"s},
         [](::IDocument& d) { return d.setFontName(Text(u"setFontName 1").get()); },
         "setFontName(\"setFontName 1\")"},
        {14,
         "setOption",
         {u"setOption 1"s, u"setOption 2"s},
         [](::IDocument& d) {
             return d.setOption(Text(u"setOption 1").get(), Text(u"setOption 2").get());
         },
         "setOption(\"setOption 1\",\"setOption 2\")"},
        {15,
         "trace",
         {std::int16_t{-1500}},
         [](::IDocument& d) { return d.trace(-1500); },
         "trace(-1500)"},
        {16,
         "getPropPages",
         {OutText{}},
         [](::IDocument& d) { return d.getPropPages(Text().receive()); },
         "getPropPages()"},
        {17, "start", {}, [](::IDocument& d) { return d.start(); }, "start()"},
        {18, "stop", {}, [](::IDocument& d) { return d.stop(); }, "stop()"},
        {19, "showLast", {}, [](::IDocument& d) { return d.showLast(); }, "showLast()"},
        {20,
         "setFontSize",
         {std::int16_t{-2000}},
         [](::IDocument& d) { return d.setFontSize(-2000); },
         "setFontSize(-2000)"},
        {21,
         "setFontAttribute",
         {std::int16_t{-2100}, true},
         [](::IDocument& d) { return d.setFontAttribute(-2100, VARIANT_TRUE); },
         "setFontAttribute(-2100,true)"},
        {22,
         "setTextAlign",
         {std::int16_t{-2200}},
         [](::IDocument& d) { return d.setTextAlign(-2200); },
         "setTextAlign(-2200)"},
        {23,
         "insertFile",
         {u"insertFile 1"s, std::int16_t{-2301}},
         [](::IDocument& d) { return d.insertFile(Text(u"insertFile 1").get(), -2301); },
         "insertFile(\"insertFile 1\",-2301)"},
        {24,
         "getDocType",
         {OutText{}},
         [](::IDocument& d) { return d.getDocType(Text().receive()); },
         "getDocType()"},
        {25,
         "overrideRegistry",
         {u"overrideRegistry 1"s, u"overrideRegistry 2"s, u"overrideRegistry 3"s,
          std::int16_t{-2503}},
         [](::IDocument& d) {
             return d.overrideRegistry(Text(u"overrideRegistry 1").get(),
                                       Text(u"overrideRegistry 2").get(),
                                       Text(u"overrideRegistry 3").get(), -2503);
         },
         "overrideRegistry(\"overrideRegistry 1\",\"overrideRegistry 2\",\"overrideRegistry "
         "3\",-2503)"},
        {26, "insertTOC", {}, [](::IDocument& d) { return d.insertTOC(); }, "insertTOC()"},
        {27, "startTable", {}, [](::IDocument& d) { return d.startTable(); }, "startTable()"},
        {28, "endTable", {}, [](::IDocument& d) { return d.endTable(); }, "endTable()"},
        {29, "addCell", {}, [](::IDocument& d) { return d.addCell(); }, "addCell()"},
        {30, "addRow", {}, [](::IDocument& d) { return d.addRow(); }, "addRow()"},
        {31,
         "insertMark",
         {std::int32_t{-3100000}, true},
         [](::IDocument& d) { return d.insertMark(-3100000, VARIANT_TRUE); },
         "insertMark(-3100000,true)"},
        {32,
         "startTOCEntry",
         {},
         [](::IDocument& d) { return d.startTOCEntry(); },
         "startTOCEntry()"},
        {33, "endTOCEntry", {}, [](::IDocument& d) { return d.endTOCEntry(); }, "endTOCEntry()"},
        {34,
         "insertImage",
         {u"insertImage 1"s, u"insertImage 2"s},
         [](::IDocument& d) {
             return d.insertImage(Text(u"insertImage 1").get(), Text(u"insertImage 2").get());
         },
         "insertImage(\"insertImage 1\",\"insertImage 2\")"},
        {35,
         "setOrientation",
         {std::int16_t{-3500}},
         [](::IDocument& d) { return d.setOrientation(-3500); },
         "setOrientation(-3500)"},
        {36,
         "setTableRowHeight",
         {std::int32_t{-3600000}},
         [](::IDocument& d) { return d.setTableRowHeight(-3600000); },
         "setTableRowHeight(-3600000)"},
        {37,
         "insertTag",
         {u"insertTag 1"s},
         [](::IDocument& d) { return d.insertTag(Text(u"insertTag 1").get()); },
         "insertTag(\"insertTag 1\")"},
        {38,
         "insertXref",
         {u"insertXref 1"s, u"insertXref 2"s},
         [](::IDocument& d) {
             return d.insertXref(Text(u"insertXref 1").get(), Text(u"insertXref 2").get());
         },
         "insertXref(\"insertXref 1\",\"insertXref 2\")"},
        {39,
         "startFile",
         {u"startFile 1"s},
         [](::IDocument& d) { return d.startFile(Text(u"startFile 1").get()); },
         "startFile(\"startFile 1\")"},
        {40, "insertLocate", {}, [](::IDocument& d) { return d.insertLocate(); }, "insertLocate()"},
        {41,
         "pushDirectory",
         {u"pushDirectory 1"s},
         [](::IDocument& d) { return d.pushDirectory(Text(u"pushDirectory 1").get()); },
         "pushDirectory(\"pushDirectory 1\")"},
        {42,
         "popDirectory",
         {},
         [](::IDocument& d) { return d.popDirectory(); },
         "popDirectory()"}};
    return calls;
}

LateArguments::LateArguments(const std::vector<CallArgument>& arguments)
    : variants_(arguments.size()) {
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        VARIANT& variant = argument(i);
        VariantInit(&variant);
        if (const auto* text = std::get_if<std::u16string>(&arguments[i])) {
            texts_.emplace_back(*text);
            variant.vt = VT_BSTR;
            variant.bstrVal = texts_.back().get();
        } else if (const auto* number = std::get_if<std::int16_t>(&arguments[i])) {
            variant.vt = VT_I2;
            variant.iVal = *number;
        } else if (const auto* large = std::get_if<std::int32_t>(&arguments[i])) {
            variant.vt = VT_I4;
            variant.lVal = *large;
        } else if (const auto* boolean = std::get_if<bool>(&arguments[i])) {
            variant.vt = VT_BOOL;
            variant.boolVal = *boolean ? VARIANT_TRUE : VARIANT_FALSE;
        } else {
            variant.vt = VT_BYREF | VT_BSTR;
            variant.pbstrVal = out_.receive();
        }
    }
    parameters_ = {variants_.data(), nullptr, static_cast<UINT>(variants_.size()), 0};
}

HRESULT invoke(IDispatch& object, DISPID id, DISPPARAMS& parameters, UINT* badArgument) {
    return object.Invoke(id, IID_NULL, 0, DISPATCH_METHOD, &parameters, nullptr, nullptr,
                         badArgument);
}

HRESULT invokeById(IDispatch& object, const OperationCall& call) {
    LateArguments arguments(call.arguments);
    return invoke(object, call.id, arguments.parameters());
}

HRESULT invokeByName(IDispatch& object, const OperationCall& call) {
    LateArguments arguments(call.arguments);
    return invoke(object, idOf(object, wide(call.name)), arguments.parameters());
}

DISPID idOf(IDispatch& object, const std::u16string& name) {
    Text text(name);
    LPOLESTR names[] = {text.get()};
    DISPID id = 0;
    object.GetIDsOfNames(IID_NULL, names, 1, 0, &id);
    return id;
}

}  // namespace quillmark::testing
