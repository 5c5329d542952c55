#include "settings_ui/windows/browse_button.h"

namespace quillmark {

namespace {

bool isFirstPress(LPARAM keyData) noexcept {
    constexpr LPARAM wasDown = LPARAM{1} << 30U;
    return (keyData & wasDown) == 0;
}

LRESULT CALLBACK buttonProcedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
    const auto previous = reinterpret_cast<WNDPROC>(GetWindowLongPtrA(window, GWLP_USERDATA));
    const bool isReturn = wparam == VK_RETURN;
    if (isReturn && message == WM_KEYDOWN) {
        // Posted, because the dialog that opens runs a message loop of its own.
        if (isFirstPress(lparam)) {
            PostMessageA(window, BM_CLICK, 0, 0);
        }
        return 0;
    }
    // The character of the key would only make the system beep.
    if (isReturn && message == WM_CHAR) {
        return 0;
    }
    const LRESULT result = CallWindowProcA(previous, window, message, wparam, lparam);
    return isReturn && message == WM_GETDLGCODE ? result | DLGC_WANTMESSAGE : result;
}

}  // namespace

void pressOnReturn(HWND button) noexcept {
    const LONG_PTR own = reinterpret_cast<LONG_PTR>(&buttonProcedure);
    SetWindowLongPtrA(button, GWLP_USERDATA, GetWindowLongPtrA(button, GWLP_WNDPROC));
    SetWindowLongPtrA(button, GWLP_WNDPROC, own);
}

}  // namespace quillmark
