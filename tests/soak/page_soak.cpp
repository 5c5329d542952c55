// Writes one document of many pages: `dochtml_page_soak PAGES [MIB]`. Each page has a contents
// entry, a bookmark, and links to the pages before and after it. The disk keeps nothing, so that
// time and memory are the driver's own. Fails if a page is missing or if more memory is needed than
// MIB.

#include <sys/resource.h>

#include <chrono>
#include <iostream>
#include <string>

#include "driver/doc_html.h"
#include "soak/discarding_file_system.h"
#include "support/installed_file_system.h"
#include "support/memory_settings_store.h"

namespace quillmark::testing {
namespace {

std::u16string numbered(const char16_t* text, std::size_t number) {
    const std::string digits = std::to_string(number);
    return text + std::u16string(digits.begin(), digits.end());
}

void writePages(std::size_t pages) {
    DocHtml document;
    document.create(u"C:\\out\\rep.htm");
    for (std::size_t page = 1; page <= pages; ++page) {
        document.setStyle(u"Heading 1");
        document.insertTag(numbered(u"GUID-", page));
        document.insertText(numbered(u"Page ", page));
        document.insertEndl();
        document.setStyle(u"Normal");
        document.insertXref(u"before", numbered(u"GUID-", page - 1));
        document.insertXref(u"after", numbered(u"GUID-", page + 1));
        document.insertText(u"The text of a page that has two links and nothing else.");
        if (page < pages) {
            document.insertPageBreak();
        }
    }
    document.close();
}

int soak(std::size_t pages, std::size_t mostMebibytes) {
    DiscardingFileSystem disk;
    const InstalledFileSystem installed(disk);
    InstalledSettingsStore settings;
    settings.set("Html", "StyleSheet", "");
    const auto start = std::chrono::steady_clock::now();
    writePages(pages);
    const std::chrono::duration<double> time = std::chrono::steady_clock::now() - start;
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    const auto mebibytes = static_cast<std::size_t>(usage.ru_maxrss) / 1024;
    std::cout << pages << " pages, " << disk.files() << " files, " << disk.bytes() << " bytes, "
              << time.count() << " s, " << mebibytes << " MiB\n";
    // Besides the pages there are the tree, the contents page and the start page.
    return disk.files() >= pages + 3 && mebibytes <= mostMebibytes ? 0 : 1;
}

}  // namespace
}  // namespace quillmark::testing

int main(int argc, char** argv) {
    const std::size_t pages = argc > 1 ? std::stoul(argv[1]) : 1'000'000;
    return quillmark::testing::soak(pages, argc > 2 ? std::stoul(argv[2]) : 400);
}
