#pragma once

#include <gtest/gtest.h>

#include <string>

#include "contents/contents_context.h"
#include "page/doc_html_page.h"
#include "support/installed_file_system.h"
#include "support/memory_file_system.h"

namespace quillmark::testing {

/// A finished document in a file system of its own: "C:\out\rep.htm", without entries, installed
/// from "C:\inst", which is empty.
class ContentsTest : public ::testing::Test {
protected:
    ContentsTest() {
        files.makeDirectories("C:\\out");
        files.makeDirectories("C:\\inst");
    }

    /// What a file of the output directory holds, "(none)" when it is not there.
    [[nodiscard]] std::string written(const OrxString& name) const {
        return files.content("C:\\out\\" + name).value_or("(none)");
    }
    /// The bytes of a page file after its head, without the end that every page has.
    [[nodiscard]] std::string body(const OrxString& name) const {
        const std::string page = written(name);
        const std::string headEnd = "</HEAD>\n\n";
        const std::string pageEnd = "\n</HTML>\n";
        const std::size_t start = page.find(headEnd);
        if (start == std::string::npos || !page.ends_with(pageEnd)) {
            return "not a page: " + page;
        }
        const std::size_t first = start + headEnd.size();
        return page.substr(first, page.size() - pageEnd.size() - first);
    }
    /// The rest of a page's head after its title.
    [[nodiscard]] std::string headBehindTitle(const OrxString& name) const {
        const std::string page = written(name);
        const std::string titleEnd = "</TITLE>\n";
        const std::size_t first = page.find(titleEnd) + titleEnd.size();
        return page.substr(first, page.find("</HEAD>") - first);
    }
    [[nodiscard]] std::string title(const OrxString& name) const {
        const std::string page = written(name);
        const std::string opening = "<TITLE>";
        const std::size_t first = page.find(opening) + opening.size();
        return page.substr(first, page.find("</TITLE>") - first);
    }

    MemoryFileSystem files;
    InstalledFileSystem inForce{files};
    FileCopier copier;
    Trace trace;
    ContentsEntryList entries;
    ContentsContext context{.baseName = "C:\\out\\rep",
                            .extension = ".htm",
                            .title = "My <Report>",
                            .bodyTags = "BGCOLOR=white",
                            .styleSheetLink = "default.css",
                            .iconFile = "",
                            .appletJar = "toc2.jar",
                            .appletArchive = "",
                            .appletJnlp = "toc2.jnlp",
                            .installDir = "C:\\inst",
                            .outputDir = "C:\\out",
                            .pixDir = "C:\\out\\pix",
                            .firstDetailPage = "C:\\out\\rep_dtl.htm",
                            .copier = copier,
                            .trace = trace,
                            .entries = entries};

    /// The other choice of applet: Java before 7.
    void useOldJava() {
        context.useJnlp = false;
        context.appletJar = "toc2_OLD.jar";
        context.appletArchive = "toc2.jar";
    }
};

}  // namespace quillmark::testing
