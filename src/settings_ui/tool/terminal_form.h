#pragma once

#include <istream>
#include <optional>
#include <ostream>

#include "settings_ui/memory_controls.h"

namespace quillmark {

/// The page as a form on a terminal: its fields one after the other, in tab order, each with what
/// it holds. An empty answer keeps that, `""` empties a text, "+" and "-" step the heading level.
/// The end of the input keeps everything that was not asked for yet.
class TerminalForm {
public:
    TerminalForm(MemoryControls& controls, std::istream& in, std::ostream& out)
        : controls_(controls), in_(in), out_(out) {}

    /// Asks for every field once. True when something was answered.
    bool fillIn();
    /// Whether the input has ended, so that asking again is of no use.
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
