#include "settings_ui/windows/page_window.h"

#include <commctrl.h>

#include <optional>
#include <string>

#include "platform/windows/this_module.h"
#include "settings_ui/windows/browse_button.h"
#include "settings_ui/windows/module_resources.h"
#include "settings_ui/windows/window_text.h"

namespace quillmark {

namespace {

bool holdsText(const PageControl& row) {
    return row.kind == ControlKind::edit || row.kind == ControlKind::numberEdit;
}

bool holdsCheck(const PageControl& row) {
    return row.kind == ControlKind::checkBox || row.kind == ControlKind::radioButton;
}

/// The page's event for a notification of that control. Nothing for notifications that the page
/// ignores.
std::optional<ControlEvent> eventOf(const PageControl& row, int notification) {
    if (holdsText(row)) {
        switch (notification) {
            case EN_SETFOCUS:
                return ControlEvent::focused;
            case EN_CHANGE:
                return ControlEvent::textChanged;
            default:
                return std::nullopt;
        }
    }
    // A command without a control counts with any notification code.
    if (row.kind == ControlKind::command || notification == BN_CLICKED) {
        return ControlEvent::clicked;
    }
    return std::nullopt;
}

}  // namespace

bool PageWindow::create(HWND parent) {
    const INITCOMMONCONTROLSEX needed{sizeof(needed), ICC_UPDOWN_CLASS};
    InitCommonControlsEx(&needed);
    window_ = CreateDialogParamW(thisModule(), MAKEINTRESOURCEW(resource::pageDialog), parent,
                                 dialogProcedure, reinterpret_cast<LPARAM>(this));
    if (window_ == nullptr) {
        return false;
    }
    for (const PageControl& row : pageControls()) {
        if (row.kind == ControlKind::button) {
            pressOnReturn(GetDlgItem(window_, row.id));
        }
    }
    restoreState();
    return true;
}

void PageWindow::destroy() {
    if (window_ != nullptr) {
        DestroyWindow(window_);
    }
    window_ = nullptr;
}

INT_PTR CALLBACK PageWindow::dialogProcedure(HWND window, UINT message, WPARAM wparam,
                                             LPARAM lparam) {
    if (message == WM_INITDIALOG) {
        SetWindowLongPtrW(window, DWLP_USER, lparam);
        // The frame sets the focus.
        return FALSE;
    }
    auto* const self = reinterpret_cast<PageWindow*>(GetWindowLongPtrW(window, DWLP_USER));
    if (self == nullptr) {
        return FALSE;
    }
    if (message == WM_COMMAND) {
        return self->onCommand(LOWORD(wparam), HIWORD(wparam)) ? TRUE : FALSE;
    }
    if (message == WM_DESTROY || message == WM_NCDESTROY) {
        self->onDestroy(message);
    }
    return FALSE;
}

void PageWindow::onDestroy(UINT message) noexcept {
    // The controls of a window that was never completely created contain nothing to keep.
    if (window_ == nullptr) {
        return;
    }
    if (message == WM_NCDESTROY) {
        window_ = nullptr;
        return;
    }
    try {
        keepState();
    } catch (...) {
        // No exception may pass through the system. The values of the controls are lost.
    }
}

bool PageWindow::onCommand(int id, int notification) noexcept {
    const PageControl* const row = findControl(id);
    // While the window is created or filled, its edit boxes report texts that the user did not
    // type.
    if (row == nullptr || window_ == nullptr || restoring_) {
        return false;
    }
    const std::optional<ControlEvent> event = eventOf(*row, notification);
    if (!event) {
        return false;
    }
    try {
        listener_(id, *event);
    } catch (...) {
        // No exception may pass through the system's message loop. The edit is lost.
        return false;
    }
    return true;
}

OrxString PageWindow::text(int id) const {
    const HWND box = GetDlgItem(window_, id);
    const int length = GetWindowTextLengthW(box);
    std::wstring text(static_cast<std::size_t>(length) + 1, L'\0');
    const int got = GetWindowTextW(box, text.data(), length + 1);
    text.resize(static_cast<std::size_t>(got));
    return pageText(text);
}

void PageWindow::setText(int id, const OrxString& text) {
    SetDlgItemTextW(window_, id, windowText(text).c_str());
}

bool PageWindow::isChecked(int id) const {
    return IsDlgButtonChecked(window_, id) == BST_CHECKED;
}

void PageWindow::setChecked(int id, bool checked) {
    CheckDlgButton(window_, id, checked ? BST_CHECKED : BST_UNCHECKED);
}

void PageWindow::setRange(int id, int lowest, int highest) {
    SendDlgItemMessageW(window_, id, UDM_SETRANGE, 0, MAKELPARAM(highest, lowest));
    hasRange_ = true;
}

void PageWindow::keepState() {
    for (const PageControl& row : pageControls()) {
        if (holdsText(row)) {
            kept_.setText(row.id, text(row.id));
        } else if (holdsCheck(row)) {
            kept_.setChecked(row.id, isChecked(row.id));
        }
    }
    hasKept_ = true;
}

void PageWindow::restoreState() {
    if (!hasKept_) {
        return;
    }
    restoring_ = true;
    for (const PageControl& row : pageControls()) {
        if (holdsText(row)) {
            setText(row.id, kept_.text(row.id));
        } else if (holdsCheck(row)) {
            setChecked(row.id, kept_.isChecked(row.id));
        }
    }
    if (hasRange_) {
        setRange(control::headingLevelSpin, lowestHeadingLevel, highestHeadingLevel);
    }
    restoring_ = false;
}

}  // namespace quillmark
