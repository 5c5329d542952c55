// Bytes become a sequence of document operations in a file system in memory; whatever they are,
// nothing may crash, leak or run away, and nothing but the driver's own exception may come out.

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "driver/boundary/operation_table.h"
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
    /// Mostly small, as attributes, fields and alignments are, or any short one.
    std::int16_t integer() {
        const std::uint8_t choice = byte();
        return choice < 0xF0 ? static_cast<std::int16_t>(choice % 16)
                             : static_cast<std::int16_t>(unit());
    }

    /// A text that driver and document have a meaning for, or one of the input's own.
    std::u16string text() {
        // clang-format off
        static constexpr std::array known = {
            u"", u"A", u"target", u"Page 2", u"toc1", u"TOC", u"TOPOFPAGE", u"Heading 1",
            u"Heading 9", u"List Number 2", u"List", u"List Bullet", u"Normal", u"C:\\in\\a.gif",
            u"C:\\in\\a.txt", u"C:\\in\\b", u"sub", u"sub\\deep", u"http://x/", u"a\n\tb  c<<",
            u"title", u"Html", u"Navig", u"UseRelative", u"2", u"true", u"C:\\out\\r.htm",
            u"<a href=\"#GUID-1\">x</a>"};
        // clang-format on
        const std::uint8_t choice = byte();
        if (choice < known.size()) {
            return known.at(choice);
        }
        std::u16string own;
        for (std::size_t left = choice % 16; left > 0; --left) {
            own.push_back(unit());
        }
        return own;
    }

private:
    char16_t unit() {
        const std::uint8_t high = byte();
        return static_cast<char16_t>((high << 8U) | byte());
    }

    const std::uint8_t* bytes_;
    std::size_t size_;
    std::size_t place_ = 0;
};

/// Arguments of a call, filled from the input. The texts' places must not change once told.
class Arguments {
public:
    Arguments(const Operation& operation, Input& input) {
        texts_.reserve(operation.parameters.size());
        for (const Parameter& parameter : operation.parameters) {
            arguments_.push_back(argument(parameter.kind, input));
        }
    }
    [[nodiscard]] std::span<const Argument> all() const { return arguments_; }

private:
    Argument argument(ParameterKind kind, Input& input) {
        switch (kind) {
            case ParameterKind::string:
                return WideText(texts_.emplace_back(input.text()));
            case ParameterKind::outString:
                return &texts_.emplace_back();
            case ParameterKind::boolean:
                return input.byte() % 2 != 0;
            case ParameterKind::shortInteger:
            case ParameterKind::longInteger:
                break;
        }
        return input.integer();
    }

    std::vector<std::u16string> texts_;
    std::vector<Argument> arguments_;
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
    const Operation& operation = operations()[input.byte() % operationCount];
    if (operation.name == std::string_view("showLast")) {
        return;  // it would start the browser
    }
    const Arguments arguments(operation, input);
    try {
        static_cast<void>(invoke(document, operation.dispatchId, arguments.all()));
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
