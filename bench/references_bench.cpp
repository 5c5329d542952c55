// Cross-references in numbers. Every figure is linear when "doubling" stays near 2 (goal 2.2);
// "ratio" compares with a plain loop that writes the same files.

#include <algorithm>
#include <numeric>
#include <random>

#include "bench_settings.h"
#include "measure.h"
#include "texts.h"

namespace quillmark::bench {

namespace {

constexpr double goal = 2.2;

void insertTagPage(IDocument& document, std::size_t tag) {
    document.insertPageBreak();
    document.insertText(u"Here it is: ");
    document.insertTag(numbered(u"GUID-", tag));
    document.insertEndl();
}

/// An index on the first page, a line each, to tags on later pages, 100 lines to a tag.
void indexOfForwardReferences(IDocument& document, std::size_t references) {
    const std::size_t tags = references / 100;
    for (std::size_t i = 0; i < references; ++i) {
        document.insertXref(u"entry", numbered(u"GUID-", i % tags));
        document.insertEndl();
    }
    for (std::size_t tag = 0; tag < tags; ++tag) {
        insertTagPage(document, tag);
    }
}

/// All references in one line, their tags on one later page in the order given.
void singleLine(IDocument& document, const std::vector<std::size_t>& order) {
    for (std::size_t i = 0; i < order.size(); ++i) {
        document.insertXref(u"entry", numbered(u"GUID-", i));
    }
    document.insertPageBreak();
    for (const std::size_t tag : order) {
        document.insertTag(numbered(u"GUID-", tag));
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
        document.insertTag(numbered(u"GUID-", i));
        document.insertText(u"here");
        if (i % 100 == 99) {
            document.insertPageBreak();
        }
    }
    for (std::size_t i = 0; i < count; ++i) {
        document.insertXref(u"there", numbered(u"GUID-", i));
        document.insertEndl();
        if (i % 100 == 99) {
            document.insertPageBreak();
        }
    }
}

void run(benchmark::State& state, Body body, std::size_t size) {
    const SettingsInForce settings({{"Navig", "4"}});
    documentDoubled(state, body, size);
    state.counters["goal"] = goal;
}

void references(const char* name, Body body, std::size_t size) {
    benchmark::RegisterBenchmark(name,
                                 [body, size](benchmark::State& state) { run(state, body, size); })
        ->UseManualTime()
        ->Iterations(3)
        ->Unit(benchmark::kMillisecond);
}

const bool registered = [] {
    references("millionForwardReferences", indexOfForwardReferences, 1'000'000);
    references("singleLineInOrder", singleLineInOrder, 200'000);
    references("singleLineReversed", singleLineReversed, 200'000);
    references("singleLineShuffled", singleLineShuffled, 200'000);
    references("pagesWaitingForOneName", pagesWaitingForOneName, 100'000);
    references("millionBackwardReferences", backwardReferences, 1'000'000);
    return true;
}();

}  // namespace

}  // namespace quillmark::bench
