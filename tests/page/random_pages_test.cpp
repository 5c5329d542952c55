// Builds random pages with DocHtmlPage and with NaivePage. Lines, marks and the written text must
// be the same after every step. Marks are removed as well as filled, so that several marks with the
// same sequence number meet at one position, which is very rare in whole documents.

#include <gtest/gtest.h>

#include <array>
#include <cstdlib>
#include <random>

#include "page/doc_html_page.h"
#include "page/html_head.h"
#include "page/naive_page.h"
#include "support/installed_file_system.h"
#include "support/memory_file_system.h"

namespace quillmark {
namespace {

std::string shown(const std::string& name, std::uint32_t line, std::uint32_t column,
                  std::uint32_t sequence, const std::string& markup) {
    return name + " " + std::to_string(line) + ":" + std::to_string(column) + " " +
           std::to_string(sequence) + " " + markup + "\n";
}

std::string marksOf(const DocHtmlPage& page) {
    std::string all;
    for (const auto& [name, mark] : page.marks()) {
        all += shown(name.str(), mark.line, mark.column, mark.sequence, mark.markup.str());
    }
    return all;
}

std::string marksOf(const testing::NaivePage& page) {
    std::string all;
    for (const auto& [name, mark] : page.marks) {
        all += shown(name, mark.line, mark.column, mark.sequence, mark.markup);
    }
    return all;
}

/// A page and the naive page that get the same random steps.
class Twins {
public:
    explicit Twins(std::uint32_t seed) : random_(seed) { page_.setFileName("C:\\p.htm"); }

    void step() {
        switch (random_() % 8) {
            case 0:
            case 1:
                append(oneOf({"", "x", "ab", "c\nd", "\n"}));
                break;
            case 2:
            case 3:
            case 4:
                addMark();
                break;
            case 5:
                resolve();
                break;
            case 6:
                remove();
                break;
            default:
                insert();
                break;
        }
    }
    [[nodiscard]] bool agree() const {
        return page_.getLineCount() == naive_.lineCount && marksOf(page_) == marksOf(naive_);
    }
    [[nodiscard]] std::string difference() const {
        return log_ + "page:\n" + marksOf(page_) + "naive:\n" + marksOf(naive_);
    }
    [[nodiscard]] const std::string& log() const { return log_; }

    /// Closes the page. Returns what its file must contain, or an empty text if there must be none.
    std::string expectedFile() {
        page_.close();
        return naive_.lineCount == 0 ? "" : htmlHead("", "", "") + naive_.text() + "\n</HTML>\n";
    }

private:
    std::string oneOf(std::initializer_list<const char*> choices) {
        return choices.begin()[random_() % choices.size()];
    }
    std::string name() { return oneOf({"a", "b", "c", "A", "HREF", "TOC", "a\nb"}); }

    void append(const std::string& text) {
        log_ += "append " + text + "\n";
        page_.append(text);
        naive_.append(text);
    }
    void addMark() {
        const std::string itsName = name();
        const std::string markup = oneOf({"", "1", "2", "</A>", "<A a>", "<A b>", "<A A>"});
        log_ += "addMark " + itsName + " " + markup + "\n";
        page_.addMark(itsName, markup);
        naive_.addMark(itsName, markup);
    }
    void resolve() {
        const std::string itsName = name();
        const std::string reference = oneOf({"", "r", "p.htm#a", "\n"});
        log_ += "resolve " + itsName + " " + reference + "\n";
        page_.resolveMarks(itsName, reference);
        naive_.resolve(itsName, reference);
    }
    void remove() {
        const std::string itsName = name();
        log_ += "remove " + itsName + "\n";
        page_.removeMarks(itsName);
        naive_.marks.erase(itsName);
    }
    void insert() {
        const std::string itsName = name();
        log_ += "insert at " + itsName + "\n";
        const bool there = page_.setInsertPoint(itsName);
        ASSERT_EQ(there, naive_.setInsertPoint(itsName)) << log_;
        if (there) {
            append("<");
            append(oneOf({"", "y", "\n"}));
            append(">");
        }
        page_.clearInsertPoint();
        naive_.insertPointSet = false;
    }

    std::mt19937 random_;
    DocHtmlPage page_;
    testing::NaivePage naive_;
    std::string log_;
};

TEST(RandomPages, AreTheSameInBothImplementations) {
    MemoryFileSystem files;
    const InstalledFileSystem installed(files);
    const char* const given = std::getenv("DOCHTML_TEST_SEED");
    const auto first =
        static_cast<std::uint32_t>(given == nullptr ? 1 : std::strtoul(given, nullptr, 10));
    for (std::uint32_t seed = first; seed != first + 10000; ++seed) {
        Twins twins(seed);
        for (int i = 0; i < 30; ++i) {
            twins.step();
            ASSERT_TRUE(twins.agree()) << "DOCHTML_TEST_SEED=" << seed << "\n"
                                       << twins.difference();
        }
        files.deleteFile("C:\\p.htm");
        const std::string expected = twins.expectedFile();
        ASSERT_EQ(files.content("C:\\p.htm").value_or(""), expected)
            << "DOCHTML_TEST_SEED=" << seed << "\n"
            << twins.log();
    }
}

}  // namespace
}  // namespace quillmark
