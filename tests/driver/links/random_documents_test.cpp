// Random documents, made by the driver and by the naive document: every file and every report
// must be the same, in the 8-bit code page and in UTF-8.
//
// The default run is the same every time. DOCHTML_TEST_SEED=n starts at another document,
// DOCHTML_TEST_ROUNDS=n makes another number of them.

#include <array>
#include <cstdlib>
#include <random>
#include <span>
#include <sstream>

#include "driver/document_fixture.h"
#include "driver/links/naive_document.h"

namespace quillmark {
namespace {

/// One call of a random document.
struct Step {
    enum class Kind {
        text,
        endLine,
        tag,
        reference,
        listing,
        pageBreak,
        directory,
        noDirectory,
        headerStart,
        headerEnd,
        entryStart,
        entryEnd,
    };
    Kind kind = Kind::text;
    std::u16string_view text;
    std::u16string_view name;
};
using Steps = std::vector<Step>;

using Choices = std::span<const std::u16string_view>;

/// What a series of documents has in common: its encoding, and the few texts that it is made of.
struct Series {
    const char* charSet;
    testing::NaiveCharSet naive;
    std::u16string_view document;
    Choices directories;
    Choices texts;
    Choices names;
};

template <typename Document>
void apply(Document& document, const Step& step) {
    switch (step.kind) {
        case Step::Kind::text:
            document.insertText(step.text);
            break;
        case Step::Kind::endLine:
            document.insertEndl();
            break;
        case Step::Kind::tag:
            document.insertTag(step.name);
            break;
        case Step::Kind::reference:
            document.insertXref(step.text, step.name);
            break;
        case Step::Kind::listing:
            document.insertTOC();
            break;
        case Step::Kind::pageBreak:
            document.insertPageBreak();
            break;
        case Step::Kind::directory:
            document.pushDirectory(step.text);
            break;
        case Step::Kind::noDirectory:
            document.popDirectory();
            break;
        case Step::Kind::headerStart:
            document.startHeader();
            break;
        case Step::Kind::headerEnd:
            document.endHeader();
            break;
        case Step::Kind::entryStart:
            document.startTOCEntry();
            break;
        case Step::Kind::entryEnd:
            document.endTOCEntry();
            break;
    }
}

std::string shown(const Steps& steps) {
    constexpr std::array names = {"text",        "endLine",   "tag",        "reference",
                                  "listing",     "pageBreak", "directory",  "noDirectory",
                                  "headerStart", "headerEnd", "entryStart", "entryEnd"};
    std::ostringstream all;
    for (const Step& step : steps) {
        all << names.at(static_cast<std::size_t>(step.kind)) << " \""
            << testing::naiveUtf8(step.text) << "\" \"" << testing::naiveUtf8(step.name) << "\"\n";
    }
    return all.str();
}

/// Makes documents of few names, so that they meet.
class StepMaker {
public:
    StepMaker(const Series& series, std::uint32_t seed) : series_(series), random_(seed) {}

    Steps document() {
        Steps steps(1 + below(24));
        for (Step& step : steps) {
            step = one();
        }
        return steps;
    }

private:
    std::size_t below(std::size_t count) { return random_() % count; }
    std::u16string_view oneOf(Choices choices) { return choices[below(choices.size())]; }

    Step one() {
        // How often each kind comes, in the order of the kinds.
        constexpr std::array<std::size_t, 12> weights = {5, 3, 8, 14, 2, 3, 2, 1, 1, 2, 1, 2};
        std::size_t pick = below(44);
        std::size_t kind = 0;
        while (pick >= weights.at(kind)) {
            pick -= weights.at(kind++);
        }
        Step step;
        step.kind = static_cast<Step::Kind>(kind);
        step.text = oneOf(step.kind == Step::Kind::directory ? series_.directories : series_.texts);
        step.name = oneOf(series_.names);
        return step;
    }

    const Series& series_;
    std::mt19937 random_;
};

constexpr std::array<std::u16string_view, 5> eightBitDirectories = {u"", u"sub", u"sub\\deep",
                                                                    u"other", u"a:b"};
constexpr std::array<std::u16string_view, 8> eightBitTexts = {u"",     u"",   u"x",    u"text",
                                                              u"a\nb", u"\n", u"</A>", u"<A a>"};
constexpr std::array<std::u16string_view, 24> eightBitNames = {
    u"A",    u"a",    u"HREF", u"TOC", u"TOPOFPAGE", u"Page 2", u"Page 1", u"toc1",
    u"toc2", u"a\nb", u"\n",   u"",    u">",         u"<A ",    u"/A",     u"x",
    u"y",    u"z",    u"one",  u"=\"", u"rep",       u"\"",     u"#",      u"</A>"};

Series eightBitSeries() {
    return {"",           testing::naiveEightBit(), u"rep", eightBitDirectories, eightBitTexts,
            eightBitNames};
}

constexpr std::u16string_view halfAPair(u"x\xD83D", 2);
constexpr std::u16string_view otherHalf(u"\xDE00\xFFFD", 2);

constexpr std::array<std::u16string_view, 6> utf8Directories = {
    u"", u"sub", u"\u4FA1\u683C\\50%#?", u"\u0446\u0435\u043D\u0430", halfAPair, u"\U0001F600:b"};
constexpr std::array<std::u16string_view, 12> utf8Texts = {u"",
                                                           u"x",
                                                           u"\u05DE\u05D7\u05D9\u05E8",
                                                           u"a\n\u0308b",
                                                           u"\n",
                                                           u"</A>",
                                                           u"<A \u4FA1>",
                                                           halfAPair,
                                                           otherHalf,
                                                           u"\U0001F468\u200D\U0001F469",
                                                           u"cafe\u0301",
                                                           u"\uFEFF\uFFFF"};
constexpr std::array<std::u16string_view, 24> utf8Names = {u"A",
                                                           u"\u4FA1",
                                                           u"HREF",
                                                           u"TOC",
                                                           u"\u4FA1\u683C",
                                                           u"Page 2",
                                                           u"Page 1",
                                                           u"toc1",
                                                           u"\u017C\u00F3\u0142w",
                                                           u"\u4FA1\n\u683C",
                                                           u"\U0001F600",
                                                           u"",
                                                           u"\u683C",
                                                           u"<A ",
                                                           u"caf\u00E9",
                                                           u"cafe\u0301",
                                                           halfAPair,
                                                           otherHalf,
                                                           u"\uFFFD",
                                                           u"\u0301",
                                                           u"\u00E9",
                                                           u"\"",
                                                           u"#%",
                                                           u"</A>"};

Series utf8Series() {
    return {"UTF-8",  testing::naiveUnicode(), u"\u5831\u544A %#", utf8Directories, utf8Texts,
            utf8Names};
}

/// Hears what is not a call.
class Reports : public TraceListener {
public:
    Reports() : before_(Trace::setListener(this)) {}
    ~Reports() override { Trace::setListener(before_); }
    Reports(const Reports&) = delete;
    Reports& operator=(const Reports&) = delete;

    int level() const override { return Trace::reports; }
    void line(int level, std::string_view text) override {
        if (level != Trace::calls) {
            text_.append(text);
        }
    }
    [[nodiscard]] const std::string& text() const { return text_; }

private:
    TraceListener* before_;
    std::string text_;
};

/// What a document has written.
struct Outcome {
    std::map<std::string, std::string> files;
    std::string reports;
    bool operator==(const Outcome&) const = default;
};

std::ostream& operator<<(std::ostream& stream, const Outcome& outcome) {
    for (const auto& [name, bytes] : outcome.files) {
        stream << "== " << name << "\n" << bytes.substr(bytes.find("</HEAD>")) << "\n";
    }
    return stream << "== reports\n" << outcome.reports;
}

Outcome naiveOutcome(const Series& series, const Steps& steps) {
    testing::NaiveDocument document(series.naive, series.document);
    for (const Step& step : steps) {
        apply(document, step);
    }
    document.close();
    return {document.files(), document.reports()};
}

Outcome driverOutcome(const Series& series, const Steps& steps) {
    std::u16string fileName(u"C:\\out\\");
    fileName.append(series.document).append(u".htm");
    MemoryFileSystem files;
    const InstalledFileSystem installed(files);
    files.put("C:\\inst\\default.css", "P { }\n");
    Outcome outcome;
    {
        const Reports reports;
        {
            DocHtml document;
            document.create(fileName);
            for (const Step& step : steps) {
                apply(document, step);
            }
            document.close();
        }
        outcome.reports = reports.text();
    }
    for (const std::string& name : files.fileNames()) {
        if (name.ends_with(".htm")) {
            outcome.files[name] = files.content(name).value_or("");
        }
    }
    return outcome;
}

/// The same document with every step left out that the difference does not need.
Steps shrunk(const Series& series, Steps steps) {
    for (std::size_t i = steps.size(); i-- > 0;) {
        Steps fewer = steps;
        fewer.erase(fewer.begin() + static_cast<std::ptrdiff_t>(i));
        if (naiveOutcome(series, fewer) != driverOutcome(series, fewer)) {
            steps = std::move(fewer);
        }
    }
    return steps;
}

std::uint32_t numberFromEnvironment(const char* name, std::uint32_t fallback) {
    const char* const text = std::getenv(name);
    return text == nullptr ? fallback : static_cast<std::uint32_t>(std::strtoul(text, nullptr, 10));
}

void expectTheSameByBothMakings(const Series& series, std::uint32_t usualRounds) {
    InstalledSettingsStore settings;
    settings.set("Settings", "InstallDir", "C:\\inst");
    settings.set("Html", "Navig", "4");
    settings.set("Html", "CharSet", series.charSet);
    const std::uint32_t first = numberFromEnvironment("DOCHTML_TEST_SEED", 1);
    const std::uint32_t rounds = numberFromEnvironment("DOCHTML_TEST_ROUNDS", usualRounds);
    for (std::uint32_t seed = first; seed != first + rounds; ++seed) {
        const Steps steps = StepMaker(series, seed).document();
        if (naiveOutcome(series, steps) != driverOutcome(series, steps)) {
            const Steps few = shrunk(series, steps);
            EXPECT_EQ(driverOutcome(series, few), naiveOutcome(series, few))
                << "DOCHTML_TEST_SEED=" << seed << ", shrunk to\n"
                << shown(few);
            return;
        }
    }
}

TEST(RandomDocuments, AreTheSameByBothMakings) {
    expectTheSameByBothMakings(eightBitSeries(), 10000);
}

TEST(RandomDocuments, AreTheSameByBothMakingsInUtf8) {
    expectTheSameByBothMakings(utf8Series(), 2000);
}

}  // namespace
}  // namespace quillmark
