#pragma once

#include <functional>
#include <map>

#include "settings_ui/page_host.h"
#include "settings_ui/page_table.h"

namespace quillmark {

/// The page's controls without a window: they hold texts and checks, tell of events as a dialog's
/// would, and do what a person could do to them.
///
///     MemoryControls controls;
///     SettingsPage page(controls, host);
///     controls.listen([&](int id, ControlEvent event) { page.handle(id, event); });
///     controls.focus(control::imagesDirectory);   // the page loads
///     controls.click(control::contents);
class MemoryControls : public PageControls {
public:
    using Listener = std::function<void(int id, ControlEvent event)>;
    void listen(Listener listener) { listener_ = std::move(listener); }

    [[nodiscard]] OrxString text(int id) const override;
    void setText(int id, const OrxString& text) override;
    [[nodiscard]] bool isChecked(int id) const override;
    void setChecked(int id, bool checked) override;
    void setRange(int id, int lowest, int highest) override;

    /// The person gives the control the focus.
    void focus(int id);
    /// The person clicks: a check box turns over, a radio button takes the check from the others
    /// of its setting.
    void click(int id);
    /// The person steps the heading level; beyond one end of the range it goes on at the other.
    void spin(int steps);

private:
    void tell(int id, ControlEvent event) const;

    struct State {
        OrxString text;
        bool checked = false;
    };
    struct Range {
        // As an up-down control is before anyone tells it a range: it steps nothing.
        int lowest = 0;
        int highest = 0;
    };
    std::map<int, State> states_;
    Range range_;
    Listener listener_;
};

}  // namespace quillmark
