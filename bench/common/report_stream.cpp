#include "common/report_stream.h"

#include <string_view>

#include "common/texts.h"

namespace quillmark::bench {

namespace {

constexpr std::size_t reportParagraphs = 6;
constexpr std::size_t rowsPerTable = 3;
constexpr std::size_t cellsPerRow = 4;
constexpr std::size_t referencesPerPage = 8;

std::string asciiBytes(const std::u16string& ascii) {
    return {ascii.begin(), ascii.end()};
}

std::string call(std::string_view name, std::string_view text) {
    return "[\"" + std::string(name) + "\",\"" + std::string(text) + "\"]\n";
}

std::string reportTag(std::size_t number) {
    return std::string(tagOpening) + std::to_string(number);
}

std::string tableCalls() {
    std::string calls = "[\"startTable\"]\n";
    for (std::size_t row = 0; row < rowsPerTable; ++row) {
        calls += "[\"addRow\"]\n";
        for (std::size_t cell = 0; cell < cellsPerRow; ++cell) {
            calls += "[\"addCell\"]\n" + call("insertText", "a short cell");
        }
    }
    return calls + "[\"endTable\"]\n";
}

std::string references(std::size_t page) {
    std::string calls;
    for (std::size_t i = 0; i < referencesPerPage; ++i) {
        const std::string number = std::to_string((page * 7 + i * 13) % page + 1);
        calls += "[\"insertXref\",\"chapter " + number + "\",\"" + std::string(tagOpening) +
                 number + "\"]\n";
    }
    return calls + "[\"insertEndl\"]\n";
}

}  // namespace

std::string reportStream(std::size_t pages) {
    std::string paragraphs;
    for (std::size_t i = 0; i < reportParagraphs; ++i) {
        paragraphs += call("insertText", asciiBytes(words(100))) + "[\"insertEndl\"]\n";
    }
    const std::string middle = call("setStyle", "Normal") + paragraphs + tableCalls();
    std::string calls = call("create", "report.htm");
    for (std::size_t page = 1; page <= pages; ++page) {
        calls += page > 1 ? "[\"insertPageBreak\"]\n" : "";
        calls += call("setStyle", "Heading 1") + call("insertTag", reportTag(page));
        calls += call("insertText", "Chapter " + std::to_string(page)) + "[\"insertEndl\"]\n";
        calls += middle + references(page);
    }
    return calls + "[\"close\"]\n";
}

}  // namespace quillmark::bench
