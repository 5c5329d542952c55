// A long report: pages of about 7 KB with a heading, six paragraphs of 60 words and a footer,
// against a plain loop that writes the same files; on disk and in memory, and as it grows.

#include "common/bench_settings.h"
#include "common/measure.h"
#include "common/texts.h"

namespace quillmark::bench {

namespace {

constexpr std::int16_t pageNumberField = 4;

/// Six paragraphs of 60 words are about 2.1 KB as bare text; long words make the page's 7 KB.
std::u16string paragraphOfLongWords() {
    std::u16string text;
    for (int word = 0; word < 60; ++word) {
        text += word % 3 == 0 ? u"responsibilities-of-the " : u"generalisation-chain ";
    }
    return text;
}

void insertFooter(IDocument& document) {
    document.startFooter();
    document.insertText(u"Reference manual, page ");
    document.insertField(pageNumberField);
    document.endFooter();
}

void insertPage(IDocument& document, std::size_t number, const std::u16string& paragraph) {
    document.setStyle(u"Heading 1");
    document.insertText(numbered(u"Chapter ", number));
    document.insertEndl();
    document.setStyle(u"Normal");
    for (int i = 0; i < 6; ++i) {
        document.insertText(paragraph);
        document.insertEndl();
    }
}

void pageStream(IDocument& document, std::size_t pages) {
    static const std::u16string paragraph = paragraphOfLongWords();
    insertFooter(document);
    for (std::size_t number = 1; number <= pages; ++number) {
        if (number > 1) {
            document.insertPageBreak();
        }
        insertPage(document, number, paragraph);
    }
}

void tenThousandPagesOnDisk(benchmark::State& state) {
    const SettingsInForce settings({});
    documentAgainstFloor(state, Place::disk, pageStream, 10'000);
    state.counters["goal"] = 1.3;
}
BENCHMARK(tenThousandPagesOnDisk)->UseManualTime()->Iterations(7)->Unit(benchmark::kMillisecond);

void tenThousandPagesInMemory(benchmark::State& state) {
    const SettingsInForce settings({});
    documentAgainstFloor(state, Place::memory, pageStream, 10'000);
    state.counters["goal"] = 1.8;
}
BENCHMARK(tenThousandPagesInMemory)->UseManualTime()->Iterations(7)->Unit(benchmark::kMillisecond);

/// Flat means: "us_per_unit" and "peak_MiB" are the same for every number of pages. The floor
/// tells what the file system itself adds as a directory grows.
void pagesGrowing(benchmark::State& state) {
    const SettingsInForce settings({{"Navig", "4"}});
    documentAgainstFloor(state, Place::memory, pageStream,
                         static_cast<std::size_t>(state.range(0)));
}
BENCHMARK(pagesGrowing)
    ->Arg(1'000)
    ->Arg(10'000)
    ->Arg(100'000)
    ->UseManualTime()
    ->Iterations(3)
    ->Unit(benchmark::kMillisecond);

}  // namespace

}  // namespace quillmark::bench
