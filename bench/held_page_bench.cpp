// What a page costs that is held back until its references resolve. "bytes_by_allowance" stays
// below 1: the allowance is twice the page's text, and 200 bytes for each pending reference.

#include <malloc.h>

#include "common/measure.h"
#include "common/texts.h"
#include "page/doc_html_page.h"
#include "platform/files/drive_table.h"

namespace quillmark::bench {

namespace {

std::size_t heapInUse() {
    const struct mallinfo2 heap = ::mallinfo2();
    return heap.uordblks + heap.hblkhd;
}

std::string tag(std::size_t number) {
    return std::string(tagOpening) + std::to_string(number);
}

void addReferences(DocHtmlPage& page, std::size_t count) {
    page.append("\n<BODY>\nSee also:<BR>\n");
    for (std::size_t i = 0; i < count; ++i) {
        const std::string name = tag(i);
        page.addMark(name, "<A " + name + ">");
        page.append("entry");
        page.addMark(name, "</A>");
        page.append("<BR>\n");
    }
    page.appendTail("</BODY>");
}

/// Many small pages or one large one.
std::vector<DocHtmlPage> heldPages(const OrxString& file, std::size_t references) {
    constexpr std::size_t referencesOfAll = 200'000;
    std::vector<DocHtmlPage> pages(referencesOfAll / references);
    for (DocHtmlPage& page : pages) {
        page.setFileName(file);
        addReferences(page, references);
        page.compact();
    }
    return pages;
}

void heldPage(benchmark::State& state) {
    const auto references = static_cast<std::size_t>(state.range(0));
    const std::filesystem::path file = freshDirectory(Place::memory) / "report.htm";
    double held = 0;
    for ([[maybe_unused]] auto _ : state) {
        const std::size_t before = heapInUse();
        std::vector<DocHtmlPage> pages = heldPages(driverPath(file.string()), references);
        held = static_cast<double>(heapInUse() - before) / static_cast<double>(pages.size());
        for (DocHtmlPage& page : pages) {
            for (std::size_t i = 0; i < references; ++i) {
                page.resolveMarks(tag(i), "report2.htm#" + tag(i));
            }
            page.close();
        }
    }
    const auto text = static_cast<double>(std::filesystem::file_size(file));
    state.counters["held"] = held;
    state.counters["text"] = text;
    state.counters["bytes_by_allowance"] =
        held / (2 * text + 200 * static_cast<double>(references));
    state.counters["goal"] = 1;
}
BENCHMARK(heldPage)->Arg(1)->Arg(10)->Arg(1'000)->Arg(200'000)->Iterations(1)->Unit(
    benchmark::kMillisecond);

}  // namespace

}  // namespace quillmark::bench
