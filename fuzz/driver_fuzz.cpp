// Bytes become a sequence of document operations in a file system in memory; whatever they are,
// nothing may crash, leak or run away, and nothing but the driver's own exception may come out.

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

#include "driver/doc_html.h"
#include "foundation/orx_exception.h"
#include "support/installed_file_system.h"
#include "support/memory_file_system.h"
#include "support/memory_settings_store.h"

namespace quillmark {
namespace {

/// Hands the fuzzer's bytes out piece by piece; behind the end everything is 0.
class Input {
public:
    Input(const std::uint8_t* bytes, std::size_t size) : bytes_(bytes), size_(size) {}

    [[nodiscard]] bool atEnd() const { return place_ == size_; }
    std::uint8_t byte() { return atEnd() ? std::uint8_t{0} : bytes_[place_++]; }
    std::int16_t number() {
        const std::uint8_t high = byte();
        return static_cast<std::int16_t>((high << 8U) | byte());
    }

    /// A text that driver and document have a meaning for, or one of the input's own.
    std::u16string text() {
        static constexpr std::array<const char16_t*, 24> known = {u"",
                                                                  u"A",
                                                                  u"target",
                                                                  u"Page 2",
                                                                  u"toc1",
                                                                  u"TOC",
                                                                  u"TOPOFPAGE",
                                                                  u"Heading 1",
                                                                  u"Heading 9",
                                                                  u"List Number 2",
                                                                  u"List",
                                                                  u"List Bullet",
                                                                  u"Normal",
                                                                  u"C:\\in\\a.gif",
                                                                  u"C:\\in\\a.txt",
                                                                  u"C:\\in\\b",
                                                                  u"sub",
                                                                  u"sub\\deep",
                                                                  u"http://x/",
                                                                  u"a\n\tb  c<<",
                                                                  u"title",
                                                                  u"Html",
                                                                  u"C:\\out\\r.htm",
                                                                  u"<a href=\"#GUID-1\">x</a>"};
        const std::uint8_t choice = byte();
        if (choice < known.size()) {
            return known.at(choice);
        }
        std::u16string own;
        for (std::size_t left = choice % 16; left > 0; --left) {
            own.push_back(static_cast<char16_t>(number()));
        }
        return own;
    }

private:
    const std::uint8_t* bytes_;
    std::size_t size_;
    std::size_t place_ = 0;
};

using Operation = void (*)(DocHtml&, Input&);

constexpr std::array<Operation, 34> operations = {
    [](DocHtml& document, Input& input) { document.insertText(input.text()); },
    [](DocHtml& document, Input&) { document.insertEndl(); },
    [](DocHtml& document, Input& input) { document.insertTag(input.text()); },
    [](DocHtml& document, Input& input) {
        const std::u16string text = input.text();
        document.insertXref(text, input.text());
    },
    [](DocHtml& document, Input&) { document.insertPageBreak(); },
    [](DocHtml& document, Input& input) { document.insertField(input.number()); },
    [](DocHtml& document, Input&) { document.startHeader(); },
    [](DocHtml& document, Input&) { document.endHeader(); },
    [](DocHtml& document, Input&) { document.startFooter(); },
    [](DocHtml& document, Input&) { document.endFooter(); },
    [](DocHtml& document, Input& input) { document.setStyle(input.text()); },
    [](DocHtml& document, Input& input) { document.setFontName(input.text()); },
    [](DocHtml& document, Input& input) { document.setFontSize(input.number()); },
    [](DocHtml& document, Input& input) {
        const auto attribute = static_cast<std::int16_t>(input.byte());
        document.setFontAttribute(attribute, input.byte() != 0);
    },
    [](DocHtml& document, Input& input) { document.setTextAlign(input.number()); },
    [](DocHtml& document, Input& input) {
        const std::u16string name = input.text();
        document.setOption(name, input.text());
    },
    [](DocHtml& document, Input& input) {
        const std::u16string name = input.text();
        document.insertFile(name, static_cast<std::int16_t>(input.byte() % 4));
    },
    [](DocHtml& document, Input& input) {
        const std::u16string name = input.text();
        document.insertImage(name, input.text());
    },
    [](DocHtml& document, Input&) { document.insertTOC(); },
    [](DocHtml& document, Input&) { document.startTable(); },
    [](DocHtml& document, Input&) { document.endTable(); },
    [](DocHtml& document, Input&) { document.addRow(); },
    [](DocHtml& document, Input&) { document.addCell(); },
    [](DocHtml& document, Input& input) {
        const std::int16_t half = input.number();
        document.insertMark(half, input.byte() != 0);
    },
    [](DocHtml& document, Input&) { document.startTOCEntry(); },
    [](DocHtml& document, Input&) { document.endTOCEntry(); },
    [](DocHtml& document, Input&) { document.insertLocate(); },
    [](DocHtml& document, Input& input) { document.pushDirectory(input.text()); },
    [](DocHtml& document, Input&) { document.popDirectory(); },
    [](DocHtml& document, Input& input) { document.setTableRowHeight(input.number()); },
    [](DocHtml& document, Input& input) {
        const std::u16string name = input.text();
        const std::u16string value = input.text();
        document.overrideRegistry(u"Html", name, value, input.number());
    },
    [](DocHtml& document, Input& input) {
        document.overrideRegistry(u"Html", u"Navig", std::u16string(1, u'0' + input.byte() % 4), 1);
    },
    [](DocHtml& document, Input&) { document.create(u"C:\\out\\r.htm"); },
    [](DocHtml& document, Input&) { document.close(); },
};

/// The store's contents and the installed files; a new document begins with the same ones.
void prepare(MemoryFileSystem& files, InstalledSettingsStore& settings) {
    files.put("C:\\inst\\default.css", "P { }\n");
    files.put("C:\\in\\a.gif", "gif");
    files.put("C:\\in\\a.txt", "one\r\n\ntwo");
    settings.set("Settings", "InstallDir", "C:\\inst");
    settings.set("Html", "Navig", "4");
}

void run(DocHtml& document, Input& input) {
    try {
        operations.at(input.byte() % operations.size())(document, input);
    } catch (const OrxException&) {
        // The style sheet or the tree data file; the document goes on.
    }
}

}  // namespace
}  // namespace quillmark

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace quillmark;
    MemoryFileSystem files;
    const InstalledFileSystem installed(files);
    InstalledSettingsStore settings;
    prepare(files, settings);
    Input input(data, size);
    DocHtml document;
    document.create(u"C:\\out\\r.htm");
    while (!input.atEnd()) {
        run(document, input);
    }
    return 0;
}
