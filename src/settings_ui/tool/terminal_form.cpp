#include "settings_ui/tool/terminal_form.h"

#include <algorithm>
#include <string>

#include "platform/sys_text.h"
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

}  // namespace

bool TerminalForm::fillIn() {
    answered_ = false;
    OrxString label;
    for (const PageControl& row : pageControls()) {
        if (ended_) {
            break;
        }
        if (row.hidden) {
            continue;
        }
        switch (row.kind) {
            case ControlKind::groupBox:
                out_ << '\n' << row.text << '\n';
                break;
            case ControlKind::label:
                label = plainText(row.text);
                break;
            case ControlKind::edit:
            case ControlKind::numberEdit:
                ask(row, label);
                break;
            case ControlKind::checkBox:
                ask(row, plainText(row.text));
                break;
            default:
                break;
        }
    }
    return answered_;
}

void TerminalForm::ask(const PageControl& row, const OrxString& label) {
    while (true) {
        out_ << SysText::toUtf8(label + " [" + shown(row) + "]: ") << std::flush;
        const std::optional<OrxString> answer = readLine();
        if (!answer) {
            ended_ = true;
            out_ << '\n';
            return;
        }
        if (answer->isEmpty()) {
            return;
        }
        if (take(row, *answer)) {
            answered_ = true;
            return;
        }
    }
}

bool TerminalForm::take(const PageControl& row, const OrxString& answer) {
    if (row.kind == ControlKind::checkBox) {
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
    const OrxString text = answer == "\"\"" ? OrxString() : answer;
    if (row.kind == ControlKind::numberEdit) {
        return takeLevel(text);
    }
    controls_.setText(row.id, text);
    return true;
}

bool TerminalForm::takeLevel(const OrxString& answer) {
    if (answer == "+" || answer == "-") {
        controls_.spin(answer == "+" ? 1 : -1);
        return true;
    }
    if (!isDigits(answer)) {
        out_ << "Please give digits only, or + or - for a step.\n";
        return false;
    }
    controls_.setText(control::headingLevel, answer);
    return true;
}

OrxString TerminalForm::shown(const PageControl& row) const {
    if (row.kind == ControlKind::checkBox) {
        return controls_.isChecked(row.id) ? "yes" : "no";
    }
    return controls_.text(row.id);
}

std::optional<OrxString> TerminalForm::readLine() {
    std::string line;
    if (!std::getline(in_, line)) {
        return std::nullopt;
    }
    if (line.ends_with('\r')) {
        line.pop_back();
    }
    return SysText::fromUtf8(line);
}

}  // namespace quillmark
