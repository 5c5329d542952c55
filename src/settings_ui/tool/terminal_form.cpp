#include "settings_ui/tool/terminal_form.h"

#include <algorithm>
#include <optional>
#include <span>
#include <utility>

#include "settings_ui/tool/control_values.h"

namespace quillmark {

namespace {

/// A control's text without the mark of its access key.
OrxString plainText(const char* text) {
    return OrxString(text).replaceStr("&", "");
}

bool isDigits(const OrxString& text) {
    return std::ranges::all_of(text.view(), [](char c) { return c >= '0' && c <= '9'; });
}

bool isQuestion(const PageControl& row) {
    return !row.hidden && (row.kind == ControlKind::edit || row.kind == ControlKind::numberEdit ||
                           row.kind == ControlKind::checkBox);
}

bool edits(const PageControl& row, std::string_view setting) {
    return row.setting != nullptr && row.setting == setting;
}

/// Whether no later row edits the same setting.
bool isLastOfSetting(std::span<const PageControl> rows, std::size_t row) {
    return std::ranges::none_of(rows.subspan(row + 1), [&](const PageControl& later) {
        return edits(later, rows[row].setting);
    });
}

/// The first row that edits the setting.
std::size_t firstRowOf(std::span<const PageControl> rows, std::string_view setting) {
    const auto found =
        std::ranges::find_if(rows, [&](const PageControl& row) { return edits(row, setting); });
    return static_cast<std::size_t>(found - rows.begin());
}

}  // namespace

bool TerminalForm::fillIn() {
    const std::span<const PageControl> rows = pageControls();
    OrxString label;
    bool refused = false;
    for (std::size_t i = 0; i < rows.size();) {
        const PageControl& row = rows[i];
        if (row.kind == ControlKind::groupBox && !row.hidden) {
            out_ << '\n' << row.text << '\n';
        } else if (row.kind == ControlKind::label) {
            label = plainText(row.text);
        }
        const Answered answered = isQuestion(row) ? ask(row, label) : Answered::accepted;
        if (answered == Answered::ended) {
            out_ << '\n';
            return !refused;
        }
        refused = answered == Answered::refused || isRefused(i);
        if (refused) {
            restore(row.setting);
            i = firstRowOf(rows, row.setting);
        } else {
            ++i;
        }
    }
    return true;
}

TerminalForm::Answered TerminalForm::ask(const PageControl& row, const OrxString& label) {
    const bool isCheckBox = row.kind == ControlKind::checkBox;
    const std::string value = shown(row).str();
    const std::optional<std::string> answer = answers_.ask(
        (isCheckBox ? plainText(row.text) : label).str() + " [" + value + "]: ", value);
    if (!answer) {
        return Answered::ended;
    }
    return answer->empty() || take(row, *answer) ? Answered::accepted : Answered::refused;
}

bool TerminalForm::take(const PageControl& row, const std::string& answer) {
    if (!canBeStored(answer)) {
        out_ << notStorable(answer) << ".\n";
        return false;
    }
    if (row.kind != ControlKind::checkBox) {
        return takeText(row, answer == "\"\"" ? OrxString() : OrxString(answer));
    }
    const std::optional<bool> wanted = yesOrNo(answer);
    if (!wanted) {
        out_ << "Please answer yes or no.\n";
        return false;
    }
    if (*wanted != controls_.isChecked(row.id)) {
        controls_.click(row.id);
    }
    return true;
}

bool TerminalForm::takeText(const PageControl& row, const OrxString& answer) {
    const bool isNumber = row.kind == ControlKind::numberEdit;
    if (isNumber && (answer == "+" || answer == "-")) {
        controls_.spin(answer == "+" ? 1 : -1);
        return true;
    }
    if (isNumber && (answer.isEmpty() || !isDigits(answer))) {
        out_ << "Please give digits only, or + or - for a step.\n";
        return false;
    }
    controls_.setText(row.id, answer);
    return true;
}

bool TerminalForm::isRefused(std::size_t row) const {
    const std::span<const PageControl> rows = pageControls();
    // A setting of two check boxes is complete with the second one. A value that the user did not
    // touch is none of the form's business.
    return isQuestion(rows[row]) && isLastOfSetting(rows, row) && hasChanged(rows[row].setting) &&
           !check_(rows[row].setting);
}

bool TerminalForm::hasChanged(std::string_view setting) const {
    return std::ranges::any_of(pageControls(), [&](const PageControl& row) {
        return edits(row, setting) && (controls_.text(row.id) != before_.text(row.id) ||
                                       controls_.isChecked(row.id) != before_.isChecked(row.id));
    });
}

void TerminalForm::restore(std::string_view setting) {
    for (const PageControl& row : pageControls()) {
        if (edits(row, setting)) {
            controls_.setText(row.id, before_.text(row.id));
            controls_.setChecked(row.id, before_.isChecked(row.id));
        }
    }
}

std::vector<std::string_view> TerminalForm::changedSettings() const {
    std::vector<std::string_view> changed;
    const std::span<const PageControl> rows = pageControls();
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (rows[i].setting != nullptr && isLastOfSetting(rows, i) && hasChanged(rows[i].setting)) {
            changed.emplace_back(rows[i].setting);
        }
    }
    return changed;
}

OrxString TerminalForm::shown(const PageControl& row) const {
    if (row.kind == ControlKind::checkBox) {
        return controls_.isChecked(row.id) ? "yes" : "no";
    }
    return controls_.text(row.id);
}

}  // namespace quillmark
