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
/// The caller owns controls and host, which must outlive the page.
class SettingsPage {
public:
    SettingsPage(PageControls& controls, PageHost& host) : controls_(controls), host_(host) {}

    /// Carries out the action that the table gives for the event. False if there is none.
    bool handle(int id, ControlEvent event);

    /// Validates and writes the settings one by one, in a fixed order. At the first value that is
    /// refused it shows a message and stops; earlier settings stay written. True if all were
    /// accepted; the page is then clean. Write errors of the store are ignored.
    bool apply();

    /// The same for the given settings only. The dirty flag of the page does not change.
    bool applyOnly(std::span<const std::string_view> settings);
    /// Shows the message of `applyOnly` if it would refuse a value now. Writes nothing.
    bool accepts(std::span<const std::string_view> settings);

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
