#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <string_view>

#include "driver/doc_html.h"
#include "support/capturing_exception_log.h"
#include "support/capturing_trace.h"
#include "support/installed_file_system.h"
#include "support/memory_file_system.h"
#include "support/memory_settings_store.h"

namespace quillmark::testing {

/// A host's text of the 8-bit characters, one unit each.
inline std::u16string wide(std::string_view text) {
    std::u16string units;
    for (const char c : text) {
        units.push_back(static_cast<unsigned char>(c));
    }
    return units;
}

/// The text between the first `from` and the first `to` after it.
inline std::string between(const std::string& text, const std::string& from,
                           const std::string& to) {
    const std::size_t hit = text.find(from);
    const std::size_t start = hit + from.size();
    const std::size_t end = hit == std::string::npos ? hit : text.find(to, start);
    return end == std::string::npos ? "not found in: " + text : text.substr(start, end - start);
}

/// A document "C:\out\rep.htm" in a file system and a settings store of its own, installed from
/// "C:\inst" with a style sheet. It has neither contents pages nor arrows unless a test sets
/// "Navig", and is opened by the test (`open`) after its settings.
class DocumentTest : public ::testing::Test {
protected:
    DocumentTest() {
        files.put("C:\\inst\\default.css", "P { }\n");
        setting("Settings", "InstallDir", "C:\\inst");
        html("Navig", "4");
    }

    void setting(const char* group, const char* name, std::string_view value) {
        settings.set(group, name, value);
    }
    /// A setting of the group "Html".
    void html(const char* name, std::string_view value) { setting("Html", name, value); }
    void open(std::u16string_view fileName = u"C:\\out\\rep.htm") { doc().create(fileName); }

    DocHtml& doc() { return *document_; }
    /// Ends the document's life; `doc()` is another one afterwards.
    void renew() {
        document_.reset();
        document_ = std::make_unique<DocHtml>();
    }

    /// The bytes of a file, "(none)" when it is not there.
    [[nodiscard]] std::string bytes(const OrxString& name) const {
        return files.content(name).value_or("(none)");
    }
    [[nodiscard]] bool isWritten(const OrxString& name) const {
        return files.content(name).has_value();
    }
    /// A file of the output directory.
    [[nodiscard]] std::string out(const OrxString& name) const { return bytes("C:\\out\\" + name); }

    /// The text between the anchor of a written page and its footer.
    [[nodiscard]] std::string bodyOf(const OrxString& name, int number = 1) const {
        return between(out(name), anchorOf(number), "\n\n</BODY>\n</HTML>\n");
    }
    /// Closes the document and returns the body of its first page.
    std::string body() {
        doc().close();
        return bodyOf("rep.htm");
    }
    /// What was written to the body until now; the document is closed for it.
    std::string written() { return cutAtEnd().substr(0, cut_); }
    /// What the end of the page adds to the body.
    std::string pageEnd() { return cutAtEnd().substr(cut_ + endMark_.size()); }
    /// Closes the document and returns what its first page has before the header's rule.
    std::string header() {
        doc().close();
        return between(out("rep.htm"), "<BODY  >\n", "<HR>\n");
    }
    /// Closes the document and returns the contents' entries, as a listing at the end of its
    /// current page shows them.
    std::string contents(const OrxString& page = "rep.htm") {
        doc().insertTOC();
        doc().close();
        return between(out(page), "<BASE TARGET=\"main\">\n<H2>Table of Contents</H2>\n",
                       "\n\n</BODY>");
    }
    /// The call lines, warnings and errors until now; they are forgotten then.
    std::string traced() {
        std::string text = trace.text();
        trace.clear();
        return text;
    }

    MemoryFileSystem files;
    InstalledFileSystem filesInForce{files};
    InstalledSettingsStore settings;
    CapturingExceptionLog exceptions;
    CapturingTrace trace;

private:
    static std::string anchorOf(int number) {
        return "<a name=\"Page " + std::to_string(number) + "\"></a>";
    }
    /// Ends the body with a field, which is written unchanged and so marks where the host ended.
    std::string cutAtEnd() {
        constexpr std::int16_t fileNameField = 3;
        doc().insertField(fileNameField);
        std::string all = body();
        cut_ = all.rfind(endMark_);
        if (cut_ == std::string::npos) {
            ADD_FAILURE() << "the end is not in the body: " << all;
            cut_ = 0;
            return endMark_;
        }
        return all;
    }

    const std::string endMark_ = "rep.htm";
    std::size_t cut_ = 0;
    std::unique_ptr<DocHtml> document_ = std::make_unique<DocHtml>();
};

/// The same, opened with what the store has by default.
class OpenDocumentTest : public DocumentTest {
protected:
    OpenDocumentTest() {
        open();
        trace.clear();
    }
};

}  // namespace quillmark::testing
