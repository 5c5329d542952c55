#include "settings_ui/memory_controls.h"

#include <algorithm>

#include "settings/reg_entry.h"

namespace quillmark {

OrxString MemoryControls::text(int id) const {
    const auto found = states_.find(id);
    return found == states_.end() ? OrxString() : found->second.text;
}

void MemoryControls::setText(int id, const OrxString& text) {
    states_[id].text = text;
    tell(id, ControlEvent::textChanged);
}

bool MemoryControls::isChecked(int id) const {
    const auto found = states_.find(id);
    return found != states_.end() && found->second.checked;
}

void MemoryControls::setChecked(int id, bool checked) {
    states_[id].checked = checked;
}

void MemoryControls::setRange(int /*id*/, int lowest, int highest) {
    range_ = {lowest, highest};
}

void MemoryControls::focus(int id) {
    tell(id, ControlEvent::focused);
}

void MemoryControls::click(int id) {
    const PageControl* const row = findControl(id);
    if (row != nullptr && row->kind == ControlKind::checkBox) {
        setChecked(id, !isChecked(id));
    }
    if (row != nullptr && row->kind == ControlKind::radioButton) {
        for (const PageControl& other : pageControls()) {
            if (other.kind == ControlKind::radioButton) {
                setChecked(other.id, other.id == id);
            }
        }
    }
    tell(id, ControlEvent::clicked);
}

void MemoryControls::spin(int steps) {
    const int count = range_.highest - range_.lowest + 1;
    const int shown = RegEntry::ofString(text(control::headingLevel)).asInt();
    const int within = std::clamp(shown, range_.lowest, range_.highest) - range_.lowest;
    const int stepped = (within + steps % count + count) % count;
    setText(control::headingLevel, RegEntry::ofInt(range_.lowest + stepped).asString());
}

void MemoryControls::tell(int id, ControlEvent event) const {
    if (listener_) {
        listener_(id, event);
    }
}

}  // namespace quillmark
