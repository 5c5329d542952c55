#pragma once

#include <functional>

#include "platform/windows/windows_api.h"
#include "settings_ui/memory_controls.h"

namespace quillmark {

/// The dialog of the settings page: a child window made from the template, whose controls it
/// hands out and whose notifications it tells as the page's events.
class PageWindow : public PageControls {
public:
    using Listener = std::function<void(int id, ControlEvent event)>;

    explicit PageWindow(Listener listener) : listener_(std::move(listener)) {}
    PageWindow(const PageWindow&) = delete;
    PageWindow& operator=(const PageWindow&) = delete;
    ~PageWindow() override { destroy(); }

    /// Makes the window, hidden, below `parent`. It shows what an earlier one of this object
    /// showed when it was destroyed. False when the system makes none.
    [[nodiscard]] bool create(HWND parent);
    /// Destroys the window and keeps what its controls hold.
    void destroy();
    /// Null while there is none, and after the parent took it along.
    [[nodiscard]] HWND handle() const noexcept { return window_; }

    [[nodiscard]] OrxString text(int id) const override;
    void setText(int id, const OrxString& text) override;
    [[nodiscard]] bool isChecked(int id) const override;
    void setChecked(int id, bool checked) override;
    void setRange(int id, int lowest, int highest) override;

private:
    static INT_PTR CALLBACK dialogProcedure(HWND window, UINT message, WPARAM wparam,
                                            LPARAM lparam);
    bool onCommand(int id, int notification) noexcept;
    /// The window goes, by `destroy` or with a parent that its owner destroyed: its controls are
    /// still there with the first message, nothing is after the second.
    void onDestroy(UINT message) noexcept;
    void keepState();
    void restoreState();

    HWND window_ = nullptr;
    Listener listener_;
    /// What the controls held when the last window went.
    MemoryControls kept_;
    bool hasKept_ = false;
    bool hasRange_ = false;
    bool restoring_ = false;
};

}  // namespace quillmark
