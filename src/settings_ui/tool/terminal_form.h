#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "settings_ui/memory_controls.h"
#include "settings_ui/tool/answer_source.h"

namespace quillmark {

/// The page as a form on a terminal. It asks for the fields in tab order and shows their current
/// values. An empty answer keeps the value, `""` sets an empty text, "+" and "-" step the heading
/// level. An answer that is refused is asked for again, and the value stays until it is accepted.
/// At the end of the input all remaining values are kept.
class TerminalForm {
public:
    /// Shows a message and returns false if the page refuses the value that the controls of the
    /// setting have now.
    using Check = std::function<bool(std::string_view setting)>;

    /// The controls have the current values. All arguments stay the caller's.
    TerminalForm(MemoryControls& controls, AnswerSource& answers, std::ostream& out, Check check)
        : controls_(controls),
          before_(controls),
          answers_(answers),
          out_(out),
          check_(std::move(check)) {}

    /// Asks for every field once. False if the input ended at a question whose last answer was
    /// refused.
    bool fillIn();
    /// The settings whose controls now have another value.
    [[nodiscard]] std::vector<std::string_view> changedSettings() const;

private:
    enum class Answered { accepted, refused, ended };

    Answered ask(const PageControl& row, const OrxString& label);
    bool take(const PageControl& row, const std::string& answer);
    bool takeText(const PageControl& row, const OrxString& answer);
    bool isRefused(std::size_t row) const;
    [[nodiscard]] bool hasChanged(std::string_view setting) const;
    void restore(std::string_view setting);
    [[nodiscard]] OrxString shown(const PageControl& row) const;

    MemoryControls& controls_;
    /// The values at the start.
    const MemoryControls before_;
    AnswerSource& answers_;
    std::ostream& out_;
    Check check_;
};

}  // namespace quillmark
