#pragma once

#include <string>
#include <vector>

#include "driver/boundary/i_document.h"
#include "foundation/utf8.h"

namespace quillmark::testing {

/// A document that only records the calls made to it, such as `insertText("Hello")` or
/// `insertMark(5,true)`. Texts are in UTF-8.
class RecordingDocument : public IDocument {
public:
    std::vector<std::string> calls;

    DocResult create(WideText fileName) override { return note("create", fileName); }
    DocResult close() override { return note("close"); }
    DocResult insertText(WideText text) override { return note("insertText", text); }
    DocResult insertEndl() override { return note("insertEndl"); }
    DocResult insertDiagram(std::int32_t ptr, std::int16_t width, std::int16_t height) override {
        return note("insertDiagram", ptr, width, height);
    }
    DocResult insertPageBreak() override { return note("insertPageBreak"); }
    DocResult insertField(std::int16_t field) override { return note("insertField", field); }
    DocResult startHeader() override { return note("startHeader"); }
    DocResult endHeader() override { return note("endHeader"); }
    DocResult startFooter() override { return note("startFooter"); }
    DocResult endFooter() override { return note("endFooter"); }
    DocResult setStyle(WideText style) override { return note("setStyle", style); }
    DocResult setFontName(WideText name) override { return note("setFontName", name); }
    DocResult setOption(WideText option, WideText value) override {
        return note("setOption", option, value);
    }
    DocResult trace(std::int16_t level) override { return note("trace", level); }
    DocResult getPropPages(std::u16string& bstrCLSID) override {
        bstrCLSID = u"{a property page}";
        return note("getPropPages");
    }
    DocResult start() override { return note("start"); }
    DocResult stop() override { return note("stop"); }
    DocResult showLast() override { return note("showLast"); }
    DocResult setFontSize(std::int16_t size) override { return note("setFontSize", size); }
    DocResult setFontAttribute(std::int16_t att, bool value) override {
        return note("setFontAttribute", att, value);
    }
    DocResult setTextAlign(std::int16_t textAlign) override {
        return note("setTextAlign", textAlign);
    }
    DocResult insertFile(WideText fileName, std::int16_t insertAsType) override {
        return note("insertFile", fileName, insertAsType);
    }
    DocResult getDocType(std::u16string& docType) override {
        docType = u"Recording";
        return note("getDocType");
    }
    DocResult overrideRegistry(WideText group, WideText name, WideText value,
                               std::int16_t valueType) override {
        return note("overrideRegistry", group, name, value, valueType);
    }
    DocResult insertTOC() override { return note("insertTOC"); }
    DocResult startTable() override { return note("startTable"); }
    DocResult endTable() override { return note("endTable"); }
    DocResult addCell() override { return note("addCell"); }
    DocResult addRow() override { return note("addRow"); }
    DocResult insertMark(std::int32_t ptr, bool isPrimary) override {
        return note("insertMark", ptr, isPrimary);
    }
    DocResult startTOCEntry() override { return note("startTOCEntry"); }
    DocResult endTOCEntry() override { return note("endTOCEntry"); }
    DocResult insertImage(WideText imageFileName, WideText fileOrUrl) override {
        return note("insertImage", imageFileName, fileOrUrl);
    }
    DocResult setOrientation(std::int16_t docorient) override {
        return note("setOrientation", docorient);
    }
    DocResult setTableRowHeight(std::int32_t points) override {
        return note("setTableRowHeight", points);
    }
    DocResult insertTag(WideText tagName) override { return note("insertTag", tagName); }
    DocResult insertXref(WideText text, WideText tagName) override {
        return note("insertXref", text, tagName);
    }
    DocResult startFile(WideText fileName) override { return note("startFile", fileName); }
    DocResult insertLocate() override { return note("insertLocate"); }
    DocResult pushDirectory(WideText directoryName) override {
        return note("pushDirectory", directoryName);
    }
    DocResult popDirectory() override { return note("popDirectory"); }

private:
    static std::string shown(WideText text) { return '"' + utf8::fromUtf16(text) + '"'; }
    static std::string shown(bool value) { return value ? "true" : "false"; }
    static std::string shown(std::int16_t value) { return std::to_string(value); }
    static std::string shown(std::int32_t value) { return std::to_string(value); }

    template <typename... Arguments>
    DocResult note(const char* name, Arguments... arguments) {
        std::string line = name;
        line += '(';
        [[maybe_unused]] const char* separator = "";
        ((line += separator, line += shown(arguments), separator = ","), ...);
        line += ')';
        calls.push_back(std::move(line));
        return resultOk;
    }
};

}  // namespace quillmark::testing
