#pragma once

#include <span>
#include <string_view>

#include "settings_ui/page_host.h"
#include "settings_ui/page_table.h"

namespace quillmark {

/// The "HTML Settings" page without its window: loads the settings of group "Html" into the
/// controls, marks itself dirty on edits, validates, and writes to the settings store.
///
///     SettingsPage page(controls, host);
///     page.handle(control::imagesDirectory, ControlEvent::focused);   // loads, once
///     page.handle(control::contents, ControlEvent::clicked);          // dirty
///     if (!page.apply()) { /* a message was shown, the page is still dirty */ }
///
/// Controls and host are the caller's and must outlive the page.
class SettingsPage {
public:
    SettingsPage(PageControls& controls, PageHost& host) : controls_(controls), host_(host) {}

    /// Does what the table routes that event of that control to. False when it is not routed.
    bool handle(int id, ControlEvent event);

    /// Validates and writes, value by value and in a fixed order, each write at once: a refusal
    /// shows its message and leaves what stands before it written. True when all was accepted;
    /// the page is clean then. Whether the store kept the values is not looked at.
    bool apply();

    /// The same for some settings only: those are validated and written in the page's order, the
    /// others are left alone. The page's dirty flag stays as it is.
    bool applyOnly(std::span<const std::string_view> settings);

    void showHelp();

    [[nodiscard]] bool isDirty() const noexcept { return dirty_; }
    [[nodiscard]] bool isLoaded() const noexcept { return !notYetLoaded_; }

private:
    void load();
    void loadNavigation();
    void setDirty(bool dirty);

    void browseDirectory(int id, const char* title);
    void browseStyleSheet();
    void browseIconFile();

    PageControls& controls_;
    PageHost& host_;
    bool dirty_ = false;
    bool notYetLoaded_ = true;
    bool loading_ = false;
};

}  // namespace quillmark
