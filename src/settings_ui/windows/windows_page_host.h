#pragma once

#include <functional>

#include "platform/windows/windows_api.h"
#include "settings_ui/page_host.h"

namespace quillmark {

/// Shows the page's message boxes, pickers and help with the functions of the system. The page's
/// window owns them.
class WindowsPageHost : public PageHost {
public:
    /// `owner` returns the page's current window. `onDirty` is called when the dirty flag changes.
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
