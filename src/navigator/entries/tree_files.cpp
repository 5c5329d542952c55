#include "navigator/entries/tree_files.h"

#include <algorithm>
#include <array>
#include <numeric>
#include <string_view>

#include "navigator/data/json_text.h"
#include "navigator/text/plain_text.h"

namespace quillmark {

namespace {

/// The link without its page when that is `page`, the page of the record before.
std::string_view shortened(std::string_view href, std::string& page) {
    const std::size_t fragment = href.find('#');
    const bool same = fragment != std::string_view::npos && href.substr(0, fragment) == page;
    page = href.substr(0, fragment);
    return same ? href.substr(fragment) : href;
}

/// The numbers at a record's end; zeros at the very end are left out.
void appendNumbers(std::string& json, std::span<const std::uint32_t> numbers) {
    while (!numbers.empty() && numbers.back() == 0) {
        numbers = numbers.first(numbers.size() - 1);
    }
    for (const std::uint32_t number : numbers) {
        json.push_back(',');
        json_text::appendNumber(json, number);
    }
}

}  // namespace

void TreeFiles::write(const DataFiles& files) const {
    const auto all = static_cast<std::uint32_t>(numbers_.nodes().size());
    for (std::uint32_t first = 0; first < all; first += entriesPerFile) {
        const std::uint32_t end = std::min(all, first + entriesPerFile);
        Numbers own(end - first);
        std::iota(own.begin(), own.end(), first);
        std::string json = "[";
        appendList(json, own, WithNumber::no);
        json.push_back(',');
        appendList(json, ancestorsOf(first, end), WithNumber::yes);
        json.push_back(']');
        files.write("tree", first / entriesPerFile, json);
    }
}

/// Ascending, each once.
TreeFiles::Numbers TreeFiles::ancestorsOf(std::uint32_t first, std::uint32_t end) const {
    Numbers found;
    const auto addParentOf = [&](std::uint32_t number) {
        const std::uint32_t parent = numbers_.nodes()[number].parent;
        if (parent != EntryNumbers::none && (found.empty() || found.back() != parent)) {
            found.push_back(parent);
        }
    };
    for (std::uint32_t number = first; number < end; ++number) {
        addParentOf(number);
    }
    // `found` grows by the parents' parents, level by level.
    for (std::size_t at = 0; at < found.size(); ++at) {  // NOLINT(modernize-loop-convert): it grows
        addParentOf(found[at]);
    }
    std::ranges::sort(found);
    found.erase(std::unique(found.begin(), found.end()), found.end());
    return found;
}

void TreeFiles::appendList(std::string& json, const Numbers& numbers, WithNumber withNumber) const {
    std::string page;
    json.push_back('[');
    for (const std::uint32_t number : numbers) {
        if (json.back() != '[') {
            json.push_back(',');
        }
        json.push_back('[');
        if (withNumber == WithNumber::yes) {
            json_text::appendNumber(json, number);
            json.push_back(',');
        }
        appendRecord(json, number, page);
        json.push_back(']');
    }
    json.push_back(']');
}

void TreeFiles::appendRecord(std::string& json, std::uint32_t number, std::string& page) const {
    const EntryNumbers::Node& node = numbers_.nodes()[number];
    const ContentsEntryView entry = entries_[node.index];
    std::u16string href;
    decoder_.append(href, shortened(entry.href, page));
    json_text::appendString(json, plain_text::ofHtml(entry.text, decoder_));
    json.push_back(',');
    json_text::appendString(json, href);
    appendNumbers(json, std::array{node.firstChild, node.children, icons_.numberOf(entry.gif),
                                   icons_.numberOf(entry.stereoGif)});
}

}  // namespace quillmark
