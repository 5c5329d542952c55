#pragma once

#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace quillmark::manual {

/// Collects document calls in the form that the replay tool plays: one JSON array per line, with
/// the operation's name and its arguments.
///
///     CallStream calls;
///     calls.add("insertText", "Hello");
///     calls.add("setFontAttribute", 1, true);
class CallStream {
public:
    /// Appends a call. Throws `std::logic_error` when the table of operations has no operation of
    /// that name or one with another number of arguments.
    template <typename... Arguments>
    void add(std::string_view operation, const Arguments&... arguments) {
        append(operation, {Argument(arguments)...});
    }
    /// Appends the line that asks the tool for a new object.
    void startOver() { text_ += "[\"new\"]\n"; }

    [[nodiscard]] const std::string& text() const noexcept { return text_; }

private:
    using Argument = std::variant<std::string_view, bool, int, unsigned>;

    void append(std::string_view operation, const std::vector<Argument>& arguments);

    std::string text_;
};

}  // namespace quillmark::manual
