#pragma once

#include <functional>

#include "platform/windows/windows_api.h"
#include "settings_ui/memory_controls.h"

namespace quillmark {

/// The dialog of the settings page: a child window created from the template. Gives access to its
/// controls and reports their notifications as events of the page.
class PageWindow : public PageControls {
public:
    using Listener = std::function<void(int id, ControlEvent event)>;

    explicit PageWindow(Listener listener) : listener_(std::move(listener)) {}
    PageWindow(const PageWindow&) = delete;
    PageWindow& operator=(const PageWindow&) = delete;
    ~PageWindow() override { destroy(); }

    /// Creates the window, hidden, as a child of `parent`. Its controls start with the values that
    /// the previous window of this object had when it was destroyed. False when the system cannot
    /// create it.
    [[nodiscard]] bool create(HWND parent);
    /// Destroys the window and keeps the values of its controls.
    void destroy();
    /// Null when there is no window: before `create`, after `destroy`, and after the parent window
    /// was destroyed.
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
    /// The window is being destroyed, by `destroy` or together with its parent. When the first
    /// message (WM_DESTROY) arrives its controls still exist; after the second (WM_NCDESTROY)
    /// nothing does.
    void onDestroy(UINT message) noexcept;
    void keepState();
    void restoreState();

    HWND window_ = nullptr;
    Listener listener_;
    /// The values of the controls when the last window was destroyed.
    MemoryControls kept_;
    bool hasKept_ = false;
    bool hasRange_ = false;
    bool restoring_ = false;
};

}  // namespace quillmark
