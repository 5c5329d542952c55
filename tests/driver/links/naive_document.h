#pragma once

#include <map>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "page/naive_page.h"

namespace quillmark::testing {

/// A second implementation of the driver's document, as simple as possible: pages, bookmarks,
/// references, directories, header, contents entries and listing, on plain strings and maps. It
/// knows what the random documents use and nothing else: a document "C:\out\rep.htm" without
/// contents pages and arrows, in style "Normal", texts without embedded links.
class NaiveDocument {
public:
    NaiveDocument();

    void insertText(std::u16string_view text);
    void insertEndl();
    void insertTag(std::u16string_view name);
    void insertXref(std::u16string_view text, std::u16string_view name);
    void insertTOC();
    void insertPageBreak();
    void pushDirectory(std::u16string_view directory);
    void popDirectory();
    void startHeader();
    void endHeader();
    void startTOCEntry();
    void endTOCEntry();
    void close();

    /// The files written, by name, each as often as it was written last.
    [[nodiscard]] const std::map<std::string, std::string>& files() const { return files_; }
    /// Warnings and reports, without the call lines.
    [[nodiscard]] const std::string& reports() const { return reports_; }

private:
    struct Page {
        int number = 0;  // pages wait in the order of their making
        std::string file;
        std::string top;
        NaivePage text;
        bool written = false;
    };
    using PagePtr = std::shared_ptr<Page>;
    struct ByNumber {
        bool operator()(const PagePtr& a, const PagePtr& b) const { return a->number < b->number; }
    };
    struct Bookmark {
        std::string reference;
        std::string pageFile;
        std::set<PagePtr, ByNumber> waitingPages;
    };
    struct Entry {
        std::string href;
        std::string text;
    };

    void startPage();
    void endPage(bool last);
    void writeOut(const std::string& html);
    void emitText(const std::string& html);
    void define(const std::string& name);
    void resolve(Bookmark& bookmark, const std::string& name);
    void reference(const std::string& name, const std::string& markup);
    void openTocAnchor();
    void addEntry(std::string& anchor, const std::string& text);
    void completeEntry();
    void finishContents();
    void fillListing(Page& page);
    void write(Page& page);
    void report(const Page& page);
    [[nodiscard]] std::string fileName() const;
    [[nodiscard]] static std::string relativeReference(const Bookmark& bookmark, const Page& page);

    PagePtr page_;
    int pageNumber_ = 1;
    std::map<int, PagePtr> keptPages_;
    std::string subDirectory_;
    bool breakJustMade_ = false;
    bool inHeader_ = false;
    bool hasHeader_ = false;
    std::string header_;
    std::map<std::string, Bookmark> bookmarks_;
    std::vector<Entry> entries_;
    int tocAnchorCount_ = 0;
    std::string tocAnchor_;
    std::string tocText_;
    bool pageHasTocEntry_ = false;
    bool inTocEntry_ = false;
    std::map<std::string, std::string> files_;
    std::string reports_;
};

}  // namespace quillmark::testing
