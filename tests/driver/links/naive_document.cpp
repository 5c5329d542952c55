#include "driver/links/naive_document.h"

#include <utility>

namespace quillmark::testing {

namespace {

const std::string outputDir = "C:\\out";

std::string narrow(std::u16string_view text) {
    std::string bytes;
    for (const char16_t unit : text) {
        bytes += static_cast<char>(unit);
    }
    return bytes;
}

/// Tabs and doubled blanks are left to the tests of the escaping.
std::string escaped(const std::string& text) {
    std::string html;
    for (const char c : text) {
        html += c == '\n' ? "<BR>\n" : std::string(1, c);
    }
    return html;
}

std::string directoryOf(const std::string& file) {
    return file.substr(0, file.rfind('\\'));
}
std::string filePartOf(const std::string& file) {
    return file.substr(file.rfind('\\') + 1);
}

std::vector<std::string> components(const std::string& path) {
    std::vector<std::string> parts(1);
    for (const char c : path) {
        if (c == '\\') {
            parts.emplace_back();
        } else {
            parts.back() += c;
        }
    }
    return parts;
}

/// The link from directory to directory. Both are below the output directory.
std::string wayTo(const std::string& target, const std::string& base) {
    const std::vector<std::string> to = components(target);
    const std::vector<std::string> from = components(base);
    std::size_t common = 0;
    while (common < to.size() && common < from.size() && to[common] == from[common]) {
        ++common;
    }
    std::string way;
    const auto step = [&way](const std::string& name) {
        way += way.empty() ? "" : "/";
        for (const char c : name) {
            way += c == ':' ? '|' : c;
        }
    };
    for (std::size_t i = common; i < from.size(); ++i) {
        step("..");
    }
    for (std::size_t i = common; i < to.size(); ++i) {
        step(to[i]);
    }
    return way;
}

std::string joined(const std::string& way, const std::string& file) {
    return way.empty() ? file : way + "/" + file;
}

}  // namespace

NaiveDocument::NaiveDocument() {
    startPage();
}

std::string NaiveDocument::fileName() const {
    const std::string number = pageNumber_ == 1 ? "" : std::to_string(pageNumber_);
    const std::string directory = subDirectory_.empty() ? "" : subDirectory_ + "\\";
    return outputDir + "\\" + directory + "rep" + number + ".htm";
}

void NaiveDocument::startPage() {
    page_ = std::make_shared<Page>();
    page_->number = pageNumber_;
    page_->file = fileName();
    page_->text.addMark("TOPOFPAGE", "");
    define("Page " + std::to_string(pageNumber_));
    pageHasTocEntry_ = false;
}

void NaiveDocument::writeOut(const std::string& html) {
    if (inHeader_) {
        header_ += html;
    } else {
        page_->text.append(html);
    }
}

void NaiveDocument::emitText(const std::string& html) {
    if (!inHeader_ && inTocEntry_) {
        tocText_ += html;
    }
    writeOut(html);
}

void NaiveDocument::insertText(std::u16string_view text) {
    emitText(escaped(narrow(text)));
}

void NaiveDocument::insertEndl() {
    completeEntry();
    writeOut("<BR>\n");
}

void NaiveDocument::insertTag(std::u16string_view name) {
    define(narrow(name));
}

void NaiveDocument::insertXref(std::u16string_view text, std::u16string_view name) {
    const std::string target = narrow(name);
    reference(target, "<A " + target + ">");
    emitText(escaped(narrow(text)));
    if (target.empty()) {
        writeOut("</A>");
    } else {
        reference(target, "</A>");
    }
}

void NaiveDocument::insertTOC() {
    page_->text.addMark("TOC", "");
}

void NaiveDocument::define(const std::string& name) {
    if (name.empty()) {
        return;
    }
    Bookmark& bookmark = bookmarks_[name];
    if (!bookmark.reference.empty()) {
        reports_ +=
            "WARNING: bookmark \"" + name + "\" already exists as " + bookmark.reference + "\n";
        return;
    }
    page_->text.append("<a name=\"" + name + "\"></a>");
    bookmark.reference = filePartOf(page_->file) + "#" + name;
    bookmark.pageFile = page_->file;
    reports_ += "created bookmark:" + name + " as " + bookmark.reference + "\n";
    resolve(bookmark, name);
}

void NaiveDocument::resolve(Bookmark& bookmark, const std::string& name) {
    const auto waiting = std::exchange(bookmark.waitingPages, {});
    for (const PagePtr& page : waiting) {
        page->text.resolve(name, relativeReference(bookmark, *page));
        if (page != page_ && page->text.marks.empty()) {
            write(*page);
            keptPages_.erase(page->number);
        }
    }
}

std::string NaiveDocument::relativeReference(const Bookmark& bookmark, const Page& page) {
    return joined(wayTo(directoryOf(bookmark.pageFile), directoryOf(page.file)),
                  bookmark.reference);
}

void NaiveDocument::reference(const std::string& name, const std::string& markup) {
    Bookmark& bookmark = bookmarks_[name];
    if (bookmark.reference.empty()) {
        page_->text.addMark(name, markup);
        bookmark.waitingPages.insert(page_);
        return;
    }
    const std::size_t hit = markup.find(name);
    if (hit == std::string::npos) {
        writeOut(markup);
        return;
    }
    writeOut(markup.substr(0, hit));
    writeOut("HREF=\"");
    writeOut(relativeReference(bookmark, *page_));
    writeOut("\"");
    writeOut(markup.substr(hit + name.size()));
}

void NaiveDocument::startTOCEntry() {
    openTocAnchor();
    inTocEntry_ = true;
}

void NaiveDocument::endTOCEntry() {
    completeEntry();
    inTocEntry_ = false;
}

void NaiveDocument::openTocAnchor() {
    const std::string name = "toc" + std::to_string(++tocAnchorCount_);
    define(name);
    tocAnchor_ = name;
    tocText_.clear();
}

void NaiveDocument::completeEntry() {
    addEntry(tocAnchor_, tocText_);
}

void NaiveDocument::addEntry(std::string& anchor, const std::string& text) {
    if (anchor.empty() || text.empty()) {
        return;
    }
    pageHasTocEntry_ = true;
    const std::string way = wayTo(directoryOf(page_->file), outputDir);
    entries_.push_back({joined(way, filePartOf(page_->file)) + "#" + anchor, text});
    anchor.clear();
}

void NaiveDocument::startHeader() {
    inHeader_ = true;
    hasHeader_ = true;
    header_.clear();
}

void NaiveDocument::endHeader() {
    inHeader_ = false;
}

void NaiveDocument::insertPageBreak() {
    if (breakJustMade_ && page_->text.lineCount < 2) {
        return;
    }
    endPage(false);
    ++pageNumber_;
    const bool header = std::exchange(inHeader_, false);
    startPage();
    inHeader_ = header;
}

void NaiveDocument::pushDirectory(std::u16string_view directory) {
    subDirectory_ = narrow(directory);
    if (page_->text.lineCount > 1) {
        insertPageBreak();
        breakJustMade_ = true;
    } else {
        page_->file = fileName();
    }
}

void NaiveDocument::popDirectory() {
    subDirectory_.clear();
}

void NaiveDocument::endPage(bool last) {
    const bool header = std::exchange(inHeader_, false);
    page_->top = "<BODY  >\n" + (hasHeader_ ? header_ + "<HR>\n" : "");
    finishContents();
    if (last) {
        for (const auto& [number, page] : std::exchange(keptPages_, {})) {
            fillListing(*page);
            write(*page);
        }
        bookmarks_.clear();
        fillListing(*page_);
        write(*page_);
    } else if (page_->text.marks.empty()) {
        write(*page_);
    } else {
        keptPages_[pageNumber_] = page_;
    }
    breakJustMade_ = false;
    inHeader_ = header;
}

void NaiveDocument::finishContents() {
    if (!pageHasTocEntry_) {
        std::string anchor = "Page " + std::to_string(pageNumber_);
        addEntry(anchor, std::string(anchor));
        if (page_->text.setInsertPoint("TOPOFPAGE")) {
            openTocAnchor();
            page_->text.insertPointSet = false;
        }
    }
    page_->text.marks.erase("TOPOFPAGE");
}

void NaiveDocument::fillListing(Page& page) {
    if (!page.text.setInsertPoint("TOC")) {
        return;
    }
    page.text.append("<BASE TARGET=\"main\">\n");
    page.text.append("<H2>Table of Contents</H2>\n");
    for (const Entry& entry : entries_) {
        page.text.append("<A HREF=\"" + entry.href + "\">" + entry.text + "</a>");
        page.text.append("<BR>\n");
    }
    page.text.insertPointSet = false;
    page.text.marks.erase("TOC");
}

void NaiveDocument::write(Page& page) {
    if (std::exchange(page.written, true)) {
        return;
    }
    const std::string styleSheet = joined(wayTo(outputDir, directoryOf(page.file)), "default.css");
    files_[page.file] =
        "<!DOCTYPE HTML PUBLIC \"-//W3C//DTD HTML 4.0 Transitional//EN\">\n"
        "  <!-- Generated by Quillmark from Zorvane Tessaline (http://www.zorvane.example/) -->\n"
        "<HTML>\n<HEAD>\n"
        "  <META HTTP-EQUIV=\"Content-Type\" CONTENT=\"text/html; iso-8859-1\">\n"
        "  <META NAME=\"GENERATOR\" CONTENT=\"Quillmark [Zorvane Tessaline]\">\n"
        "  <TITLE></TITLE>\n"
        "  <LINK REL=STYLESHEET TYPE=\"text/css\" HREF=\"" +
        styleSheet + "\" >\n</HEAD>\n\n" + page.top + page.text.text() + "\n\n</BODY>\n</HTML>\n";
    report(page);
}

void NaiveDocument::report(const Page& page) {
    if (page.text.marks.empty()) {
        return;
    }
    reports_ += "Unresolved references on page " + page.file + "\n";
    for (const auto& [name, mark] : page.text.marks) {
        reports_ += "  " + name + " near line " + std::to_string(mark.line) +
                    (mark.markup.empty() ? "" : " " + mark.markup) + "\n";
    }
}

void NaiveDocument::close() {
    endPage(true);
}

}  // namespace quillmark::testing
