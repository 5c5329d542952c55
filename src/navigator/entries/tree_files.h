#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "contents/entries/contents_entry_list.h"
#include "navigator/data/data_files.h"
#include "navigator/entries/entry_numbers.h"
#include "navigator/entries/navigator_icons.h"
#include "navigator/text/text_decoder.h"

namespace quillmark {

/// Writes the entries of the contents, so many in each file, together with their ancestors.
class TreeFiles {
public:
    static constexpr std::uint32_t entriesPerFile = 200;

    TreeFiles(const ContentsEntryList& entries, const EntryNumbers& numbers,
              const NavigatorIcons& icons, const TextDecoder& decoder) noexcept
        : entries_(entries), numbers_(numbers), icons_(icons), decoder_(decoder) {}

    void write(const DataFiles& files) const;

private:
    enum class WithNumber { no, yes };
    using Numbers = std::vector<std::uint32_t>;

    [[nodiscard]] Numbers ancestorsOf(std::uint32_t first, std::uint32_t end) const;
    void appendList(std::string& json, const Numbers& numbers, WithNumber withNumber) const;
    /// `page` is the page of the record before.
    void appendRecord(std::string& json, std::uint32_t number, std::string& page) const;

    const ContentsEntryList& entries_;
    const EntryNumbers& numbers_;
    const NavigatorIcons& icons_;
    const TextDecoder& decoder_;
};

}  // namespace quillmark
