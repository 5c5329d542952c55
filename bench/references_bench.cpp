// Cross-references in numbers. Every figure is linear when "doubling" stays near 2 (goal 2.2);
// "ratio" compares with a plain loop that writes the same files. On disk, because a file system in
// memory remembers no name that it has not found, so that it searches anew for every link; but for
// 100,000 files in memory, where a file costs the same however many there are.

#include <algorithm>
#include <numeric>
#include <random>

#include "common/bench_settings.h"
#include "common/measure.h"
#include "common/texts.h"

namespace quillmark::bench {

namespace {

void insertTagPage(IDocument& document, std::size_t tag) {
    document.insertPageBreak();
    document.insertText(u"Here it is: ");
    document.insertTag(tagName(tag));
    document.insertEndl();
}

/// An index on the first page, a line each, to tags on later pages, 100 lines to a tag.
void indexOfForwardReferences(IDocument& document, std::size_t references) {
    const std::size_t tags = references / 100;
    for (std::size_t i = 0; i < references; ++i) {
        document.insertXref(u"entry", tagName(i % tags));
        document.insertEndl();
    }
    for (std::size_t tag = 0; tag < tags; ++tag) {
        insertTagPage(document, tag);
    }
}

/// All references in one line, their tags on one later page in the order given.
void singleLine(IDocument& document, const std::vector<std::size_t>& order) {
    for (std::size_t i = 0; i < order.size(); ++i) {
        document.insertXref(u"entry", tagName(i));
    }
    document.insertPageBreak();
    for (const std::size_t tag : order) {
        document.insertTag(tagName(tag));
    }
    document.insertText(u"done");
}

std::vector<std::size_t> inOrder(std::size_t count) {
    std::vector<std::size_t> order(count);
    std::iota(order.begin(), order.end(), std::size_t{0});
    return order;
}

void singleLineInOrder(IDocument& document, std::size_t count) {
    singleLine(document, inOrder(count));
}

void singleLineReversed(IDocument& document, std::size_t count) {
    std::vector<std::size_t> order = inOrder(count);
    std::reverse(order.begin(), order.end());
    singleLine(document, order);
}

void singleLineShuffled(IDocument& document, std::size_t count) {
    std::vector<std::size_t> order = inOrder(count);
    std::mt19937 always_the_same(7);
    std::shuffle(order.begin(), order.end(), always_the_same);
    singleLine(document, order);
}

/// Every page waits for one name that the last page defines.
void pagesWaitingForOneName(IDocument& document, std::size_t pages) {
    for (std::size_t i = 0; i < pages; ++i) {
        document.insertText(u"See the ");
        document.insertXref(u"end", u"GUID-END");
        document.insertPageBreak();
    }
    document.insertTag(u"GUID-END");
    document.insertText(u"end");
}

/// Names first, then a reference to each.
void backwardReferences(IDocument& document, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) {
        document.insertTag(tagName(i));
        document.insertText(u"here");
        if (i % 100 == 99) {
            document.insertPageBreak();
        }
    }
    for (std::size_t i = 0; i < count; ++i) {
        document.insertXref(u"there", tagName(i));
        document.insertEndl();
        if (i % 100 == 99) {
            document.insertPageBreak();
        }
    }
}

void run(benchmark::State& state, Place place, Body body, std::size_t size) {
    const SettingsInForce settings({{"Navig", "4"}});
    documentDoubled(state, place, body, size);
    state.counters["goal"] = doublingGoal;
}

void references(const char* name, Place place, Body body, std::size_t size) {
    benchmark::RegisterBenchmark(name,
                                 [=](benchmark::State& state) { run(state, place, body, size); })
        ->UseManualTime()
        ->Iterations(3)
        ->Unit(benchmark::kMillisecond);
}

const bool registered = [] {
    references("millionForwardReferences", Place::disk, indexOfForwardReferences, 1'000'000);
    references("singleLineInOrder", Place::disk, singleLineInOrder, 200'000);
    references("singleLineReversed", Place::disk, singleLineReversed, 200'000);
    references("singleLineShuffled", Place::disk, singleLineShuffled, 200'000);
    references("pagesWaitingForOneName", Place::memory, pagesWaitingForOneName, 100'000);
    references("millionBackwardReferences", Place::disk, backwardReferences, 1'000'000);
    return true;
}();

}  // namespace

}  // namespace quillmark::bench
