#pragma once

#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "replay/input/rapidjson_reader.h"
#include "support/memory_file_system.h"

namespace quillmark::fuzzing {

/// Reads the script navigator's files of data as docs/navigator.md describes them, without any code
/// of the driver. A file that is not as described ends the run.
class NavigatorFiles {
public:
    using Numbers = std::set<std::uint32_t>;
    struct Places {
        Numbers entries;
        Numbers pages;
        friend bool operator==(const Places&, const Places&) = default;
    };
    using Words = std::map<std::u16string, Places>;
    struct Entry {
        std::u16string text;
        std::u16string href;
        std::uint32_t level = 0;
    };

    /// `directory` is the navigator's own, with its backslash.
    NavigatorFiles(const MemoryFileSystem& files, std::string directory);

    /// Checks that every file of data holds JSON in the form described.
    void checkAll() const;
    /// A file's data.
    [[nodiscard]] rapidjson::Document data(const std::string& name) const;
    [[nodiscard]] bool has(const std::string& name) const;
    /// Every word of the index.
    [[nodiscard]] Words words() const;
    /// The entries in document order, their hrefs whole.
    [[nodiscard]] std::vector<Entry> entries() const;
    /// The tables "page" and "anchor": null is `none`.
    static constexpr std::uint32_t none = 0xFFFFFFFF;
    [[nodiscard]] std::vector<std::uint32_t> table(const std::string& kind) const;

private:
    struct Record {
        Entry entry;
        std::uint32_t first = 0;
        std::uint32_t count = 0;
    };

    [[nodiscard]] std::vector<Record> records() const;
    static void addRecords(std::vector<Record>& all, const rapidjson::Value& list);
    static void addInOrder(std::vector<Entry>& ordered, const std::vector<Record>& all,
                           std::uint32_t number, std::uint32_t level);

    const MemoryFileSystem& files_;
    std::string directory_;
};

}  // namespace quillmark::fuzzing
