#pragma once

#include <istream>
#include <optional>
#include <ostream>

#include "settings_ui/memory_controls.h"

namespace quillmark {

/// The page as a form on a terminal. It asks for the fields in tab order and shows their current
/// values. An empty answer keeps the value, `""` sets an empty text, "+" and "-" step the heading
/// level. At the end of the input all remaining values are kept.
class TerminalForm {
public:
    TerminalForm(MemoryControls& controls, std::istream& in, std::ostream& out)
        : controls_(controls), in_(in), out_(out) {}

    /// Asks for every field once. True if there was an answer other than "keep the value".
    bool fillIn();
    /// Whether the input has ended, so that asking again is useless.
    [[nodiscard]] bool hasEnded() const noexcept { return ended_; }

private:
    void ask(const PageControl& row, const OrxString& label);
    bool take(const PageControl& row, const OrxString& answer);
    bool takeLevel(const OrxString& answer);
    [[nodiscard]] OrxString shown(const PageControl& row) const;
    std::optional<OrxString> readLine();

    MemoryControls& controls_;
    std::istream& in_;
    std::ostream& out_;
    bool answered_ = false;
    bool ended_ = false;
};

}  // namespace quillmark
