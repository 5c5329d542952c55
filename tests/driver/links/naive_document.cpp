#include "driver/links/naive_document.h"

#include <algorithm>
#include <utility>

namespace quillmark::testing {

namespace {

using String = std::u32string;

const String outputDir = U"C:\\out";

String decimal(std::int64_t number) {
    const std::string digits = std::to_string(number);
    return {digits.begin(), digits.end()};
}

/// Tabs and doubled blanks are left to the tests of the escaping.
String escaped(const String& text) {
    String html;
    for (const char32_t c : text) {
        html += c == '\n' ? U"<BR>\n" : String(1, c);
    }
    return html;
}

String directoryOf(const String& file) {
    return file.substr(0, file.rfind('\\'));
}
String filePartOf(const String& file) {
    return file.substr(file.rfind('\\') + 1);
}

std::vector<String> components(const String& path) {
    std::vector<String> parts(1);
    for (const char32_t c : path) {
        if (c == '\\') {
            parts.emplace_back();
        } else {
            parts.back() += c;
        }
    }
    return parts;
}

/// A path as links write it: "sub\a:b" is "sub/a|b".
String inLinkForm(const String& path) {
    String link = path;
    std::replace(link.begin(), link.end(), U'\\', U'/');
    std::replace(link.begin(), link.end(), U':', U'|');
    return link;
}

/// The way from directory to directory. Both are below the output directory.
String relativeDirectory(const String& target, const String& base) {
    const std::vector<String> to = components(target);
    const std::vector<String> from = components(base);
    std::size_t common = 0;
    while (common < to.size() && common < from.size() && to[common] == from[common]) {
        ++common;
    }
    String way;
    for (std::size_t i = common; i < from.size(); ++i) {
        way += U"..\\";
    }
    for (std::size_t i = common; i < to.size(); ++i) {
        way += to[i] + U"\\";
    }
    return way;
}

}  // namespace

NaiveDocument::NaiveDocument(const NaiveCharSet& charSet, std::u16string_view name)
    : charSet_(charSet), name_(charSet.characters(name)) {
    startPage();
}

String NaiveDocument::fileName() const {
    const String number = pageNumber_ == 1 ? U"" : decimal(pageNumber_);
    const String directory = subDirectory_.empty() ? U"" : subDirectory_ + U"\\";
    return outputDir + U"\\" + directory + name_ + number + U".htm";
}

void NaiveDocument::startPage() {
    page_ = std::make_shared<Page>();
    page_->number = pageNumber_;
    page_->file = fileName();
    page_->text.addMark(U"TOPOFPAGE", U"");
    define(U"Page " + decimal(pageNumber_));
    pageHasTocEntry_ = false;
}

void NaiveDocument::writeOut(const String& html) {
    if (inHeader_) {
        header_ += html;
    } else {
        page_->text.append(html);
    }
}

void NaiveDocument::emitText(const String& html) {
    if (!inHeader_ && inTocEntry_) {
        tocText_ += html;
    }
    writeOut(html);
}

void NaiveDocument::insertText(std::u16string_view text) {
    emitText(escaped(charSet_.characters(text)));
}

void NaiveDocument::insertEndl() {
    completeEntry();
    writeOut(U"<BR>\n");
}

void NaiveDocument::insertTag(std::u16string_view name) {
    define(charSet_.characters(name));
}

void NaiveDocument::insertXref(std::u16string_view text, std::u16string_view name) {
    const String target = charSet_.characters(name);
    reference(target, U"<A " + target + U">");
    emitText(escaped(charSet_.characters(text)));
    if (target.empty()) {
        writeOut(U"</A>");
    } else {
        reference(target, U"</A>");
    }
}

void NaiveDocument::insertTOC() {
    page_->text.addMark(U"TOC", U"");
}

void NaiveDocument::define(const String& name) {
    if (name.empty()) {
        return;
    }
    Bookmark& bookmark = bookmarks_[name];
    if (!bookmark.pageFile.empty()) {
        reports_ += U"WARNING: bookmark \"" + name + U"\" already exists as " +
                    filePartOf(bookmark.pageFile) + U"#" + name + U"\n";
        return;
    }
    page_->text.append(U"<a name=\"" + name + U"\"></a>");
    bookmark.pageFile = page_->file;
    reports_ +=
        U"created bookmark:" + name + U" as " + filePartOf(page_->file) + U"#" + name + U"\n";
    resolve(bookmark, name);
}

void NaiveDocument::resolve(Bookmark& bookmark, const String& name) {
    const auto waiting = std::exchange(bookmark.waitingPages, {});
    for (const PagePtr& page : waiting) {
        page->text.resolve(name, relativeReference(bookmark, name, *page));
        if (page != page_ && page->text.marks.empty()) {
            write(*page);
            keptPages_.erase(page->number);
        }
    }
}

String NaiveDocument::wayTo(const String& file, const String& base) const {
    const String directory = relativeDirectory(directoryOf(file), directoryOf(base));
    return charSet_.link(inLinkForm(directory + filePartOf(file)));
}

String NaiveDocument::relativeReference(const Bookmark& bookmark, const String& name,
                                        const Page& page) const {
    return wayTo(bookmark.pageFile, page.file) + U"#" + name;
}

void NaiveDocument::reference(const String& name, const String& markup) {
    Bookmark& bookmark = bookmarks_[name];
    if (bookmark.pageFile.empty()) {
        page_->text.addMark(name, markup);
        bookmark.waitingPages.insert(page_);
        return;
    }
    const std::size_t hit = markup.find(name);
    if (hit == String::npos) {
        writeOut(markup);
        return;
    }
    writeOut(markup.substr(0, hit));
    writeOut(U"HREF=\"");
    writeOut(relativeReference(bookmark, name, *page_));
    writeOut(U"\"");
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
    const String name = U"toc" + decimal(++tocAnchorCount_);
    define(name);
    tocAnchor_ = name;
    tocText_.clear();
}

void NaiveDocument::completeEntry() {
    addEntry(tocAnchor_, tocText_);
}

void NaiveDocument::addEntry(String& anchor, const String& text) {
    if (anchor.empty() || text.empty()) {
        return;
    }
    pageHasTocEntry_ = true;
    const String href = wayTo(page_->file, outputDir + U"\\") + U"#" + anchor;
    entries_.push_back({href, text});
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
    subDirectory_ = charSet_.characters(directory);
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
    page_->top = U"<BODY  >\n" + (hasHeader_ ? header_ + U"<HR>\n" : U"");
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
        String anchor = U"Page " + decimal(pageNumber_);
        addEntry(anchor, String(anchor));
        if (page_->text.setInsertPoint(U"TOPOFPAGE")) {
            openTocAnchor();
            page_->text.insertPointSet = false;
        }
    }
    page_->text.marks.erase(U"TOPOFPAGE");
}

void NaiveDocument::fillListing(Page& page) {
    if (!page.text.setInsertPoint(U"TOC")) {
        return;
    }
    page.text.append(U"<BASE TARGET=\"main\">\n");
    page.text.append(U"<H2>Table of Contents</H2>\n");
    for (const Entry& entry : entries_) {
        page.text.append(U"<A HREF=\"" + entry.href + U"\">" + entry.text + U"</a>");
        page.text.append(U"<BR>\n");
    }
    page.text.insertPointSet = false;
    page.text.marks.erase(U"TOC");
}

void NaiveDocument::write(Page& page) {
    if (std::exchange(page.written, true)) {
        return;
    }
    const String styleSheet = wayTo(outputDir + U"\\default.css", page.file);
    files_[charSet_.bytes(page.file)] = charSet_.bytes(
        U"<!DOCTYPE HTML PUBLIC \"-//W3C//DTD HTML 4.0 Transitional//EN\">\n"
        U"  <!-- Generated by Quillmark from Zorvane Tessaline (http://www.zorvane.example/) -->\n"
        U"<HTML>\n<HEAD>\n"
        U"  <META HTTP-EQUIV=\"Content-Type\" CONTENT=\"" +
        String(charSet_.contentType) +
        U"\">\n"
        U"  <META NAME=\"GENERATOR\" CONTENT=\"Quillmark [Zorvane Tessaline]\">\n"
        U"  <TITLE></TITLE>\n"
        U"  <LINK REL=STYLESHEET TYPE=\"text/css\" HREF=\"" +
        styleSheet + U"\" >\n</HEAD>\n\n" + page.top + page.text.text() +
        U"\n\n</BODY>\n</HTML>\n");
    report(page);
}

void NaiveDocument::report(const Page& page) {
    if (page.text.marks.empty()) {
        return;
    }
    reports_ += U"Unresolved references on page " + page.file + U"\n";
    for (const auto& [name, mark] : page.text.marks) {
        reports_ += U"  " + name + U" near line " + decimal(mark.line) +
                    (mark.markup.empty() ? U"" : U" " + mark.markup) + U"\n";
    }
}

void NaiveDocument::close() {
    endPage(true);
}

}  // namespace quillmark::testing
