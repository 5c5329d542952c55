#pragma once

#include <functional>

#include "platform/windows/windows_api.h"
#include "settings_ui/page_host.h"

namespace quillmark {

/// The page's message boxes, pickers and help through the system, owned by the page's window.
class WindowsPageHost : public PageHost {
public:
    /// `owner` tells the page's window at the time of asking; `onDirty` hears of the dirty flag.
    WindowsPageHost(std::function<HWND()> owner, std::function<void(bool dirty)> onDirty)
        : owner_(std::move(owner)), onDirty_(std::move(onDirty)) {}

    void showMessage(const OrxString& text, const OrxString& title) override;
    [[nodiscard]] std::optional<OrxString> chooseDirectory(const OrxString& title) override;
    [[nodiscard]] std::optional<OrxString> chooseFile(const FileChoice& choice) override;
    void showHelp(const OrxString& helpFile, unsigned long context) override;
    void dirtyChanged(bool dirty) override { onDirty_(dirty); }

private:
    std::function<HWND()> owner_;
    std::function<void(bool dirty)> onDirty_;
};

}  // namespace quillmark
