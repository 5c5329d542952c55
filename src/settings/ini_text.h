#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillmark {

/// The text of an ini file, line by line, so that what is not understood is kept as it stands.
///
/// Section and key are matched in any case (ASCII letters), blanks around both sides of "=" are
/// trimmed, one pair of quotes around a value is removed, lines beginning with ";" are comments,
/// the first section of a name counts, and in it the first key of a name. All lines end as the
/// first one does.
class IniText {
public:
    IniText() = default;
    explicit IniText(std::string_view text);

    [[nodiscard]] std::optional<std::string> value(std::string_view section,
                                                   std::string_view key) const;
    /// Sets a value: in its line, behind the last line of its section, or in a new section at the
    /// end. False when an ini file cannot hold that section, key or value.
    [[nodiscard]] bool set(std::string_view section, std::string_view key,
                           std::string_view newValue);
    [[nodiscard]] std::string text() const;
    /// The number (from 1) of the first line that is none of section, key, comment (with "#" too)
    /// or blank.
    [[nodiscard]] std::optional<std::size_t> firstUnknownLine() const;

private:
    /// Where a section's lines lie: behind its head up to the next section or the end.
    struct Range {
        std::size_t first;
        std::size_t end;
    };

    [[nodiscard]] std::optional<Range> findSection(std::string_view section) const;
    [[nodiscard]] std::optional<std::size_t> findKey(Range range, std::string_view key) const;

    /// Without their line ends.
    std::vector<std::string> lines_;
    std::string_view lineEnd_ = "\n";
    bool endsInLineEnd_ = true;
};

}  // namespace quillmark
