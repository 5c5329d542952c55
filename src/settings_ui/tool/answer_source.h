#pragma once

#include <istream>
#include <memory>
#include <optional>
#include <ostream>
#include <string>

namespace quillmark {

/// Where the answers to the questions of a form come from. Texts are UTF-8.
class AnswerSource {
public:
    AnswerSource() = default;
    AnswerSource(const AnswerSource&) = delete;
    AnswerSource& operator=(const AnswerSource&) = delete;
    virtual ~AnswerSource() = default;

    /// Shows `prompt` and returns the next line without its line end. Nothing at the end of the
    /// input. `current` is the value that the question is about; a source where lines can be edited
    /// offers it for editing.
    [[nodiscard]] virtual std::optional<std::string> ask(const std::string& prompt,
                                                         const std::string& current) = 0;
};

/// Takes the answers from a stream, line by line.
class StreamAnswers final : public AnswerSource {
public:
    /// The streams stay the caller's.
    StreamAnswers(std::istream& in, std::ostream& out) : in_(in), out_(out) {}

    [[nodiscard]] std::optional<std::string> ask(const std::string& prompt,
                                                 const std::string& current) override;

private:
    std::istream& in_;
    std::ostream& out_;
};

/// Answers from the user's terminal, with the cursor keys and the usual editing commands. Null if
/// standard input or output is not a terminal, and on systems that edit lines themselves.
[[nodiscard]] std::unique_ptr<AnswerSource> makeTerminalAnswers();

}  // namespace quillmark
