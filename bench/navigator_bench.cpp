// A report of pages of about 7 KB with and without the script navigator: what the search index
// costs, in time, in bytes and in memory, and as it grows.

#include <algorithm>
#include <array>
#include <cmath>
#include <string>
#include <vector>

#include "common/bench_settings.h"
#include "common/measure.h"
#include "common/peak_memory.h"
#include "common/texts.h"
#include "navigator/index/word_index.h"
#include "navigator/text/page_words.h"
#include "platform/text_encoding.h"

namespace quillmark::bench {

namespace {

constexpr std::size_t vocabulary = 50'000;
constexpr std::size_t paragraphCount = 4'000;
constexpr std::size_t paragraphsPerPage = 12;
constexpr std::size_t wordsPerParagraph = 80;

/// The same numbers in every run.
class Numbers {
public:
    /// From 0 up to 1, without it.
    double next() {
        state_ = state_ * 6364136223846793005U + 1442695040888963407U;
        return static_cast<double>(state_ >> 11U) / static_cast<double>(1ULL << 53U);
    }

private:
    std::uint64_t state_ = 14;
};

/// A word of a vocabulary; the first ones are the shortest.
std::u16string wordOf(std::size_t rank) {
    constexpr std::array<const char16_t*, 16> syllables = {
        u"re",  u"la", u"to", u"mi", u"sen", u"con", u"der", u"pa",
        u"ver", u"ti", u"on", u"ex", u"um",  u"ist", u"ba",  u"ko"};
    std::u16string word;
    for (std::size_t rest = rank + 1; rest != 0; rest /= syllables.size()) {
        word += syllables[rest % syllables.size()];
    }
    return word;
}

/// Paragraphs whose words are as frequent as those of a language: the n-th one 1/n of the first.
const std::vector<std::u16string>& paragraphs() {
    static const std::vector<std::u16string> all = [] {
        Numbers numbers;
        std::vector<std::u16string> made(paragraphCount);
        for (std::u16string& text : made) {
            for (std::size_t word = 0; word < wordsPerParagraph; ++word) {
                const double rank = std::pow(static_cast<double>(vocabulary), numbers.next());
                text += wordOf(static_cast<std::size_t>(rank) - 1) + u' ';
            }
        }
        return made;
    }();
    return all;
}

void insertPage(IDocument& document, std::size_t number) {
    document.setStyle(u"Heading 1");
    document.insertText(numbered(u"Chapter ", number));
    document.insertEndl();
    document.setStyle(u"Normal");
    for (std::size_t part = 0; part < paragraphsPerPage; ++part) {
        document.insertText(
            paragraphs()[(number * paragraphsPerPage + part * part * 37) % paragraphCount]);
        document.insertEndl();
    }
}

void report(IDocument& document, std::size_t pages) {
    for (std::size_t number = 1; number <= pages; ++number) {
        if (number > 1) {
            document.insertPageBreak();
        }
        insertPage(document, number);
    }
}

struct Run {
    Seconds seconds;
    double peakMemory;
};

Run runReport(const std::filesystem::path& directory, std::size_t pages, const char* navigator) {
    const SettingsInForce settings({{"ScriptNavigator", navigator}});
    settle(Place::memory);
    resetPeakMemory();
    const Seconds seconds = secondsOfDocument(directory, report, pages);
    return {seconds, peakMemoryGrowth()};
}

struct Sizes {
    std::size_t pages = 0;
    std::size_t index = 0;
    std::size_t pairs = 0;
};

/// Reads the set again for what the index has in it.
Sizes sizesOf(const std::filesystem::path& directory) {
    Sizes sizes;
    WordIndex index;
    const DocumentDecoder decoder(TextEncoding::codePage());
    PageWords words(decoder, index);
    for (const FileBytes& file : filesBelow(directory)) {
        const std::string name = file.name.filename().string();
        if (name.starts_with("report_dtl")) {
            sizes.pages += file.bytes.size();
            const std::string_view page = file.bytes;
            index.startPage(static_cast<std::uint32_t>(index.pairs()));
            words.read({&page, 1});
        } else if (name.starts_with("word") || name == "index.js") {
            sizes.index += file.bytes.size();
        }
    }
    sizes.pairs = index.pairs();
    return sizes;
}

/// "ratio_cpu": with the navigator by without it. "share": the index by the pages' bytes.
/// "bytes_per_pair": memory that the navigator adds, the words among it, by (word, page) pairs.
void navigatorReport(benchmark::State& state) {
    const auto pages = static_cast<std::size_t>(state.range(0));
    static_cast<void>(paragraphs());
    std::vector<Seconds> with;
    std::vector<Seconds> without;
    double memoryWith = 0;
    double memoryWithout = 0;
    std::filesystem::path last;
    for ([[maybe_unused]] auto _ : state) {
        const Run off = runReport(freshDirectory(Place::memory), pages, "false");
        last = freshDirectory(Place::memory);
        const Run on = runReport(last, pages, "true");
        without.push_back(off.seconds);
        with.push_back(on.seconds);
        memoryWithout = off.peakMemory;
        memoryWith = on.peakMemory;
        state.SetIterationTime(on.seconds.clock);
    }
    const Sizes sizes = sizesOf(last);
    const double withoutCpu = median(without).processor;
    const double withCpu = median(with).processor;
    state.counters["ratio_cpu"] = withCpu / withoutCpu;
    state.counters["ratio"] = median(with).clock / median(without).clock;
    state.counters["goal"] = 1.5;
    state.counters["us_per_page"] = withCpu * 1e6 / static_cast<double>(pages);
    state.counters["index_us_per_page"] = (withCpu - withoutCpu) * 1e6 / static_cast<double>(pages);
    state.counters["MB"] = static_cast<double>(sizes.pages) / 1e6;
    state.counters["share"] = static_cast<double>(sizes.index) / static_cast<double>(sizes.pages);
    state.counters["bytes_per_pair"] =
        (memoryWith - memoryWithout) * 1048576 / static_cast<double>(sizes.pairs);
    state.counters["pairs_per_page"] =
        static_cast<double>(sizes.pairs) / static_cast<double>(pages);
}
BENCHMARK(navigatorReport)
    ->Arg(1'000)
    ->Arg(10'000)
    ->UseManualTime()
    ->Iterations(5)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(navigatorReport)
    ->Arg(100'000)
    ->UseManualTime()
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);

}  // namespace

}  // namespace quillmark::bench
