#pragma once

#include <functional>
#include <string>
#include <thread>
#include <vector>

#include "platform/windows/windows_api.h"
#include "settings_ui/windows/completed_frame.h"

namespace quillmark {

/// The frame's Apply button.
inline constexpr int applyButton = 0x3021;

/// The visible parts of a message box.
struct MessageBoxSeen {
    std::string title;
    std::string text;
    bool hasExclamation = false;
};

/// Acts as the user of a property frame. The frame runs in a thread of its own, and all actions are
/// window messages to controls, found by identifier.
class FrameDriver {
public:
    /// Opens the frame with a page of that class and waits until the page exists.
    explicit FrameDriver(const CLSID& pageClass = completedPageClass);
    FrameDriver(const FrameDriver&) = delete;
    FrameDriver& operator=(const FrameDriver&) = delete;
    /// Cancels the frame if it is still open.
    ~FrameDriver();

    [[nodiscard]] HWND frame() const { return frame_; }
    [[nodiscard]] HWND page() const { return page_; }
    [[nodiscard]] HWND control(int id) const { return GetDlgItem(page_, id); }

    /// The text of the box.
    [[nodiscard]] std::string text(int id) const;
    [[nodiscard]] bool isChecked(int id) const;
    /// The identifier of the control that has the focus.
    [[nodiscard]] int focused() const;
    [[nodiscard]] bool applyIsEnabled() const;
    [[nodiscard]] bool isOpen() const;

    /// Replaces the text of the box, key by key.
    void type(int id, const std::string& text) const;
    /// Replaces the text as pasting does, without the checks on typed keys.
    void paste(int id, const std::string& text) const;
    void click(int id) const;
    void giveFocus(int id) const;
    /// A key that the frame's message loop sees.
    void press(WPARAM key) const;
    /// Presses Apply and waits until it is done. Confirms a message box and returns it; the title
    /// is empty when there was none.
    [[nodiscard]] MessageBoxSeen pressApply() const;
    /// Presses OK or Cancel and waits until the frame is closed.
    void pressOk();
    void pressCancel();

    /// Waits for the dialog of that title, which an action has opened, and runs `play` on it, then
    /// waits until it is closed.
    void playDialog(const std::string& title, const std::function<void(HWND)>& play) const;
    /// Clicks the button and plays the dialog that it opens.
    void withDialog(int button, const std::string& title,
                    const std::function<void(HWND)>& play) const;

    /// A top-level window of the frame's thread whose title contains that text, or null.
    [[nodiscard]] HWND findWindow(const std::string& title) const;

private:
    void run();
    void pressFrameButton(int id) const;
    void waitUntilIdle() const;

    CLSID pageClass_;
    std::thread thread_;
    DWORD threadId_ = 0;
    HWND frame_ = nullptr;
    HWND page_ = nullptr;
};

/// Waits until the condition holds; throws when it never does.
void waitFor(const char* what, const std::function<bool()>& condition);

[[nodiscard]] std::string windowText(HWND window);

}  // namespace quillmark
