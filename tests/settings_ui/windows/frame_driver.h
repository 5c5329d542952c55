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

/// A message box as a person sees it.
struct MessageBoxSeen {
    std::string title;
    std::string text;
    bool hasExclamation = false;
};

/// Plays a person in front of the property frame: the frame runs in a thread of its own, and
/// everything reaches it by control identifiers and window messages.
class FrameDriver {
public:
    /// Opens the frame with a page of that class and waits until the page is there.
    explicit FrameDriver(const CLSID& pageClass = completedPageClass);
    FrameDriver(const FrameDriver&) = delete;
    FrameDriver& operator=(const FrameDriver&) = delete;
    /// Cancels what is still open.
    ~FrameDriver();

    [[nodiscard]] HWND frame() const { return frame_; }
    [[nodiscard]] HWND page() const { return page_; }
    [[nodiscard]] HWND control(int id) const { return GetDlgItem(page_, id); }

    /// What the box shows.
    [[nodiscard]] std::string text(int id) const;
    [[nodiscard]] bool isChecked(int id) const;
    /// The identifier of the control that has the focus.
    [[nodiscard]] int focused() const;
    [[nodiscard]] bool applyIsEnabled() const;
    [[nodiscard]] bool isOpen() const;

    /// Replaces the text of the box, key by key.
    void type(int id, const std::string& text) const;
    /// Replaces the text as a paste would, past what the box takes from the keys.
    void paste(int id, const std::string& text) const;
    void click(int id) const;
    void giveFocus(int id) const;
    /// A key that the frame's message loop sees.
    void press(WPARAM key) const;
    /// Presses Apply and waits until it is done; a message box that came up is confirmed and
    /// told. An empty title: none came.
    [[nodiscard]] MessageBoxSeen pressApply() const;
    /// Presses OK or Cancel and waits for the frame to go.
    void pressOk();
    void pressCancel();

    /// Clicks the button, waits for the dialog of that title and runs `play` on it, then waits
    /// until it is gone.
    void withDialog(int button, const std::string& title,
                    const std::function<void(HWND)>& play) const;

    /// A top-level window of the frame's thread whose title holds that text, or null.
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
