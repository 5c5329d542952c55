#include "settings_ui/windows/frame_driver.h"

#include "settings_ui/windows/completed_frame.h"

#include <atomic>
#include <future>
#include <stdexcept>

// These need the types of windows_api.h above them.
#include <commctrl.h>
#include <ole2.h>
#include <olectl.h>
#include <prsht.h>

namespace quillmark {

namespace {

constexpr const char* frameTitle = "Report settings";
constexpr int messageText = 0xFFFF;
constexpr int firstBox = 5601;

struct WindowSearch {
    std::string title;
    HWND found = nullptr;
};

BOOL CALLBACK matchTitle(HWND window, LPARAM search) {
    auto& wanted = *reinterpret_cast<WindowSearch*>(search);
    if (IsWindowVisible(window) != FALSE &&
        windowText(window).find(wanted.title) != std::string::npos) {
        wanted.found = window;
    }
    return wanted.found == nullptr ? TRUE : FALSE;
}

BOOL CALLBACK cancelDialog(HWND window, LPARAM /*unused*/) {
    if (IsWindowVisible(window) != FALSE && IsWindowEnabled(window) != FALSE) {
        PostMessageA(window, WM_COMMAND, IDCANCEL, 0);
    }
    return TRUE;
}

BOOL CALLBACK matchPage(HWND window, LPARAM found) {
    if (GetDlgItem(window, firstBox) == nullptr) {
        return TRUE;
    }
    *reinterpret_cast<HWND*>(found) = window;
    return FALSE;
}

HWND pageIn(HWND frame) {
    HWND page = nullptr;
    EnumChildWindows(frame, matchPage, reinterpret_cast<LPARAM>(&page));
    return page;
}

std::atomic<WPARAM> lastMark{0};

UINT markMessage() {
    static const UINT message = RegisterWindowMessageA("quillmark settings test mark");
    return message;
}

/// Receives every message that the frame's thread takes from its queue.
LRESULT CALLBACK noticeMarks(int code, WPARAM wparam, LPARAM lparam) {
    const auto* const message = reinterpret_cast<const MSG*>(lparam);
    if (code == HC_ACTION && wparam == PM_REMOVE && message->message == markMessage()) {
        lastMark = message->wParam;
    }
    return CallNextHookEx(nullptr, code, wparam, lparam);
}

HWND iconIn(HWND box) {
    HWND child = nullptr;
    while ((child = FindWindowExA(box, child, "Static", nullptr)) != nullptr) {
        if ((GetWindowLongA(child, GWL_STYLE) & SS_TYPEMASK) == SS_ICON) {
            return child;
        }
    }
    return nullptr;
}

/// An object for the frame to show. The page does not use it.
class Nothing final : public IUnknown {
public:
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
        *object = IsEqualIID(iid, IID_IUnknown) ? this : nullptr;
        return *object == nullptr ? E_NOINTERFACE : S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return 2; }
    ULONG STDMETHODCALLTYPE Release() override { return 1; }
};

}  // namespace

void waitFor(const char* what, const std::function<bool()>& condition) {
    constexpr int tries = 1500;
    constexpr DWORD pause = 20;
    for (int i = 0; i < tries; ++i) {
        if (condition()) {
            return;
        }
        Sleep(pause);
    }
    throw std::runtime_error(std::string("waited in vain: ") + what);
}

std::string windowText(HWND window) {
    std::string text(static_cast<std::size_t>(SendMessageA(window, WM_GETTEXTLENGTH, 0, 0)) + 1,
                     '\0');
    const LRESULT got =
        SendMessageA(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()));
    text.resize(static_cast<std::size_t>(got));
    return text;
}

FrameDriver::FrameDriver(const CLSID& pageClass) : pageClass_(pageClass) {
    std::promise<DWORD> started;
    thread_ = std::thread([this, &started] {
        started.set_value(GetCurrentThreadId());
        run();
    });
    threadId_ = started.get_future().get();
    try {
        waitFor("the frame", [this] {
            frame_ = findWindow(frameTitle);
            page_ = frame_ == nullptr ? nullptr : pageIn(frame_);
            return page_ != nullptr && IsWindowVisible(page_) != FALSE;
        });
        waitUntilIdle();
    } catch (...) {
        // A frame that does not appear cannot be closed. Its thread ends with the program.
        thread_.detach();
        throw;
    }
}

FrameDriver::~FrameDriver() {
    while (isOpen()) {
        EnumThreadWindows(threadId_, cancelDialog, 0);
        Sleep(20);
    }
    thread_.join();
}

void FrameDriver::run() {
    OleInitialize(nullptr);
    SetWindowsHookExA(WH_GETMESSAGE, noticeMarks, nullptr, GetCurrentThreadId());
    {
        const CompletedPageClass completed;
        Nothing nothing;
        IUnknown* object = &nothing;
        CLSID page = pageClass_;
        OleCreatePropertyFrame(nullptr, 0, 0, L"Report settings", 1, &object, 1, &page,
                               MAKELCID(MAKELANGID(LANG_ENGLISH, SUBLANG_ENGLISH_US), SORT_DEFAULT),
                               0, nullptr);
    }
    OleUninitialize();
}

bool FrameDriver::isOpen() const {
    return IsWindow(frame_) != FALSE;
}

std::string FrameDriver::text(int id) const {
    return windowText(control(id));
}

bool FrameDriver::isChecked(int id) const {
    return SendMessageA(control(id), BM_GETCHECK, 0, 0) == BST_CHECKED;
}

int FrameDriver::focused() const {
    GUITHREADINFO info{};
    info.cbSize = sizeof(info);
    GetGUIThreadInfo(threadId_, &info);
    return GetDlgCtrlID(info.hwndFocus);
}

bool FrameDriver::applyIsEnabled() const {
    return IsWindowEnabled(GetDlgItem(frame_, applyButton)) != FALSE;
}

void FrameDriver::type(int id, const std::string& text) const {
    const HWND box = control(id);
    giveFocus(id);
    SendMessageA(box, EM_SETSEL, 0, -1);
    constexpr WPARAM backspace = 8;
    SendMessageA(box, WM_CHAR, backspace, 0);
    for (const char character : text) {
        SendMessageA(box, WM_CHAR, static_cast<unsigned char>(character), 0);
    }
}

void FrameDriver::paste(int id, const std::string& text) const {
    SendMessageA(control(id), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text.c_str()));
}

void FrameDriver::click(int id) const {
    SendMessageA(control(id), BM_CLICK, 0, 0);
    waitUntilIdle();
}

void FrameDriver::giveFocus(int id) const {
    SendMessageA(page_, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(control(id)), TRUE);
    waitUntilIdle();
}

void FrameDriver::press(WPARAM key) const {
    GUITHREADINFO info{};
    info.cbSize = sizeof(info);
    GetGUIThreadInfo(threadId_, &info);
    PostMessageA(info.hwndFocus, WM_KEYDOWN, key, 1);
    PostMessageA(info.hwndFocus, WM_KEYUP, key, static_cast<LPARAM>(0xC0000001));
    waitUntilIdle();
}

void FrameDriver::waitUntilIdle() const {
    // This message comes after all that were posted before. When the frame's loop has taken it from
    // the queue, those have been processed.
    static WPARAM count = 0;
    const WPARAM mark = ++count;
    PostMessageA(frame_, markMessage(), mark, 0);
    waitFor("the frame's queue", [this, mark] { return !isOpen() || lastMark == mark; });
}

void FrameDriver::pressFrameButton(int id) const {
    PostMessageA(GetDlgItem(frame_, id), BM_CLICK, 0, 0);
}

MessageBoxSeen FrameDriver::pressApply() const {
    pressFrameButton(applyButton);
    MessageBoxSeen seen;
    waitFor("the end of Apply", [&] {
        const HWND box = findWindow("Invalid Value");
        if (box == nullptr) {
            return !applyIsEnabled();
        }
        seen.title = windowText(box);
        seen.text = windowText(GetDlgItem(box, messageText));
        const LRESULT icon = SendMessageA(iconIn(box), STM_GETICON, 0, 0);
        seen.hasExclamation =
            icon == reinterpret_cast<LRESULT>(LoadIconA(nullptr, IDI_EXCLAMATION));
        PostMessageA(box, WM_COMMAND, IDOK, 0);
        waitFor("the message box to go", [box] { return IsWindow(box) == FALSE; });
        return true;
    });
    waitUntilIdle();
    return seen;
}

void FrameDriver::pressOk() {
    pressFrameButton(IDOK);
    waitFor("the frame to go", [this] { return !isOpen(); });
}

void FrameDriver::pressCancel() {
    pressFrameButton(IDCANCEL);
    waitFor("the frame to go", [this] { return !isOpen(); });
}

void FrameDriver::withDialog(int button, const std::string& title,
                             const std::function<void(HWND)>& play) const {
    PostMessageA(control(button), BM_CLICK, 0, 0);
    playDialog(title, play);
}

void FrameDriver::playDialog(const std::string& title,
                             const std::function<void(HWND)>& play) const {
    HWND dialog = nullptr;
    waitFor(title.c_str(), [&] {
        dialog = findWindow(title);
        return dialog != nullptr;
    });
    play(dialog);
    waitFor("the dialog to go", [dialog] { return IsWindow(dialog) == FALSE; });
    waitUntilIdle();
}

HWND FrameDriver::findWindow(const std::string& title) const {
    WindowSearch search{title};
    EnumThreadWindows(threadId_, matchTitle, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

}  // namespace quillmark
