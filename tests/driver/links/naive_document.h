#pragma once

#include <map>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "driver/encoding/naive_char_set.h"
#include "page/naive_page.h"

namespace quillmark::testing {

/// A second implementation of the driver's document, as simple as possible: pages, bookmarks,
/// references, directories, header, contents entries and listing, on plain strings of characters
/// and on maps. It knows what the random documents use and nothing else: a document in "C:\out"
/// without contents pages and arrows, in style "Normal", texts without embedded links.
class NaiveDocument {
public:
    /// The name is without directory and suffix.
    NaiveDocument(const NaiveCharSet& charSet, std::u16string_view name);

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
    [[nodiscard]] std::string reports() const { return charSet_.bytes(reports_); }

private:
    using String = std::u32string;

    struct Page {
        int number = 0;  // pages wait in the order of their making
        String file;
        String top;
        BasicNaivePage<String> text;
        bool written = false;
    };
    using PagePtr = std::shared_ptr<Page>;
    struct ByNumber {
        bool operator()(const PagePtr& a, const PagePtr& b) const { return a->number < b->number; }
    };
    struct Bookmark {
        String pageFile;  // empty while it is not defined
        std::set<PagePtr, ByNumber> waitingPages;
    };
    struct Entry {
        String href;
        String text;
    };

    void startPage();
    void endPage(bool last);
    void writeOut(const String& html);
    void emitText(const String& html);
    void define(const String& name);
    void resolve(Bookmark& bookmark, const String& name);
    void reference(const String& name, const String& markup);
    void openTocAnchor();
    void addEntry(String& anchor, const String& text);
    void completeEntry();
    void finishContents();
    void fillListing(Page& page);
    void write(Page& page);
    void report(const Page& page);
    [[nodiscard]] String fileName() const;
    [[nodiscard]] String wayTo(const String& file, const String& base) const;
    [[nodiscard]] String relativeReference(const Bookmark& bookmark, const String& name,
                                           const Page& page) const;

    NaiveCharSet charSet_;
    String name_;
    PagePtr page_;
    int pageNumber_ = 1;
    std::map<int, PagePtr> keptPages_;
    String subDirectory_;
    bool breakJustMade_ = false;
    bool inHeader_ = false;
    bool hasHeader_ = false;
    String header_;
    std::map<String, Bookmark> bookmarks_;
    std::vector<Entry> entries_;
    int tocAnchorCount_ = 0;
    String tocAnchor_;
    String tocText_;
    bool pageHasTocEntry_ = false;
    bool inTocEntry_ = false;
    std::map<std::string, std::string> files_;
    String reports_;
};

}  // namespace quillmark::testing
