// Random documents, made by the driver and by the naive document: every file and every report
// must be the same.
//
// The default run is the same every time. DOCHTML_TEST_SEED=n starts at another document,
// DOCHTML_TEST_ROUNDS=n makes another number of them.

#include <array>
#include <cstdlib>
#include <random>
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
    std::string text;
    std::string name;
};
using Steps = std::vector<Step>;

template <typename Document>
void apply(Document& document, const Step& step) {
    const std::u16string text = testing::wide(step.text);
    const std::u16string name = testing::wide(step.name);
    switch (step.kind) {
        case Step::Kind::text:
            document.insertText(text);
            break;
        case Step::Kind::endLine:
            document.insertEndl();
            break;
        case Step::Kind::tag:
            document.insertTag(name);
            break;
        case Step::Kind::reference:
            document.insertXref(text, name);
            break;
        case Step::Kind::listing:
            document.insertTOC();
            break;
        case Step::Kind::pageBreak:
            document.insertPageBreak();
            break;
        case Step::Kind::directory:
            document.pushDirectory(text);
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
        all << names.at(static_cast<std::size_t>(step.kind)) << " \"" << step.text << "\" \""
            << step.name << "\"\n";
    }
    return all.str();
}

/// Makes documents of few names, so that they meet.
class StepMaker {
public:
    explicit StepMaker(std::uint32_t seed) : random_(seed) {}

    Steps document() {
        Steps steps(1 + below(24));
        for (Step& step : steps) {
            step = one();
        }
        return steps;
    }

private:
    std::size_t below(std::size_t count) { return random_() % count; }
    template <std::size_t n>
    std::string oneOf(const std::array<const char*, n>& choices) {
        return choices.at(below(n));
    }

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
        step.text = step.kind == Step::Kind::directory ? oneOf(directories) : oneOf(texts);
        step.name = oneOf(names);
        return step;
    }

    static constexpr std::array directories = {"", "sub", "sub\\deep", "other", "a:b"};
    static constexpr std::array texts = {"", "", "x", "text", "a\nb", "\n", "</A>", "<A a>"};
    static constexpr std::array names = {"A",      "a",    "HREF", "TOC",  "TOPOFPAGE", "Page 2",
                                         "Page 1", "toc1", "toc2", "a\nb", "\n",        "",
                                         ">",      "<A ",  "/A",   "x",    "y",         "z",
                                         "one",    "=\"",  "rep",  "\"",   "#",         "</A>"};
    std::mt19937 random_;
};

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

Outcome naiveOutcome(const Steps& steps) {
    testing::NaiveDocument document;
    for (const Step& step : steps) {
        apply(document, step);
    }
    document.close();
    return {document.files(), document.reports()};
}

Outcome driverOutcome(const Steps& steps) {
    MemoryFileSystem files;
    const InstalledFileSystem installed(files);
    files.put("C:\\inst\\default.css", "P { }\n");
    Outcome outcome;
    {
        const Reports reports;
        {
            DocHtml document;
            document.create(u"C:\\out\\rep.htm");
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
Steps shrunk(Steps steps) {
    for (std::size_t i = steps.size(); i-- > 0;) {
        Steps fewer = steps;
        fewer.erase(fewer.begin() + static_cast<std::ptrdiff_t>(i));
        if (naiveOutcome(fewer) != driverOutcome(fewer)) {
            steps = std::move(fewer);
        }
    }
    return steps;
}

std::uint32_t numberFromEnvironment(const char* name, std::uint32_t fallback) {
    const char* const text = std::getenv(name);
    return text == nullptr ? fallback : static_cast<std::uint32_t>(std::strtoul(text, nullptr, 10));
}

TEST(RandomDocuments, AreTheSameByBothMakings) {
    InstalledSettingsStore settings;
    settings.set("Settings", "InstallDir", "C:\\inst");
    settings.set("Html", "Navig", "4");
    const std::uint32_t first = numberFromEnvironment("DOCHTML_TEST_SEED", 1);
    const std::uint32_t rounds = numberFromEnvironment("DOCHTML_TEST_ROUNDS", 10000);
    for (std::uint32_t seed = first; seed != first + rounds; ++seed) {
        const Steps steps = StepMaker(seed).document();
        if (naiveOutcome(steps) != driverOutcome(steps)) {
            const Steps few = shrunk(steps);
            EXPECT_EQ(driverOutcome(few), naiveOutcome(few))
                << "DOCHTML_TEST_SEED=" << seed << ", shrunk to\n"
                << shown(few);
            return;
        }
    }
}

}  // namespace
}  // namespace quillmark
