#pragma once

#include <functional>
#include <map>

#include "settings_ui/page_host.h"
#include "settings_ui/page_table.h"

namespace quillmark {

/// The page's controls without a window: they store texts and checks, report the same events as a
/// dialog, and have a function for everything that a user can do.
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

    /// The user moves the focus to the control.
    void focus(int id);
    /// The user clicks: a check box is toggled, a radio button becomes the checked one of its
    /// setting.
    void click(int id);
    /// The user steps the heading level, which wraps around at the ends of its range.
    void spin(int steps);

private:
    void tell(int id, ControlEvent event) const;

    struct State {
        OrxString text;
        bool checked = false;
    };
    struct Range {
        // Without a range, an up-down control does not step.
        int lowest = 0;
        int highest = 0;
    };
    std::map<int, State> states_;
    Range range_;
    Listener listener_;
};

}  // namespace quillmark
