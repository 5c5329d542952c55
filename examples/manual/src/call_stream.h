#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quillmark::manual {

/// Collects document calls in the form that the replay tool plays: a JSON array a line, the
/// operation's name first, then its arguments.
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
        append(operation, {json(arguments)...});
    }
    /// Appends the tool's own line for a fresh object.
    void startOver() { text_ += "[\"new\"]\n"; }

    [[nodiscard]] const std::string& text() const noexcept { return text_; }

private:
    static std::string json(std::string_view argument);
    static std::string json(const char* argument) { return json(std::string_view(argument)); }
    static std::string json(const std::string& argument) {
        return json(std::string_view(argument));
    }
    static std::string json(bool argument) { return argument ? "true" : "false"; }
    static std::string json(int argument) { return std::to_string(argument); }
    static std::string json(unsigned argument) { return std::to_string(argument); }

    void append(std::string_view operation, const std::vector<std::string>& arguments);

    std::string text_;
};

}  // namespace quillmark::manual
