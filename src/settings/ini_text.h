#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillmark {

/// The text of an ini file. It can be read and changed, and keeps lines that it does not
/// understand.
///
/// Sections and keys are found in any case (ASCII letters). Blanks around keys and values are
/// removed, and so is one pair of quotes around a value. Lines that start with ";" are comments. Of
/// several sections of a name the first counts, and in it the first key of a name. All lines get
/// the line end of the first one.
///
///     IniText ini("[Html]\nNavig = 3\n");
///     ini.value("html", "navig");            // "3"
///     ini.set("Html", "TOCLevel", "2");      // true
///     ini.text();                            // "[Html]\nNavig = 3\nTOCLevel=2\n"
class IniText {
public:
    IniText() = default;
    explicit IniText(std::string_view text);

    /// The value of a key, or nothing.
    [[nodiscard]] std::optional<std::string> value(std::string_view section,
                                                   std::string_view key) const;
    /// Sets a value: in the line of the key, or in a new line at the end of the section, or in a
    /// new section at the end. False if an ini file cannot hold that section, key or value.
    [[nodiscard]] bool set(std::string_view section, std::string_view key,
                           std::string_view newValue);
    /// The whole text.
    [[nodiscard]] std::string text() const;
    /// The number, counted from 1, of the first line that is not a section, a key, a comment (with
    /// ";" or "#") or blank. Nothing if there is none.
    [[nodiscard]] std::optional<std::size_t> firstUnknownLine() const;

private:
    /// The lines of a section, from the one after its name up to the next section or the end.
    struct Range {
        std::size_t first;
        std::size_t end;
    };

    [[nodiscard]] std::optional<Range> findSection(std::string_view section) const;
    [[nodiscard]] std::optional<std::size_t> findKey(Range range, std::string_view key) const;

    /// Without line ends.
    std::vector<std::string> lines_;
    std::string_view lineEnd_ = "\n";
    bool endsInLineEnd_ = true;
};

}  // namespace quillmark
