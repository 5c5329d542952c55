#pragma once

#include <optional>
#include <span>
#include <string_view>

#include "settings/reg_entry.h"
#include "settings_ui/page_host.h"

namespace quillmark {

/// Validates the values of the page's controls and writes them to the settings store, one by one.
/// At the first value that is refused it shows a message and stops; earlier values stay written.
/// Write errors of the store are ignored.
class SettingsSaver {
public:
    /// All settings of the page.
    SettingsSaver(const PageControls& controls, PageHost& host)
        : controls_(controls), host_(host) {}
    /// Only the given settings, in the same order.
    SettingsSaver(const PageControls& controls, PageHost& host,
                  std::span<const std::string_view> wanted)
        : controls_(controls), host_(host), wanted_(wanted) {}

    /// True if everything was accepted.
    [[nodiscard]] bool save();
    /// The same without writing anything.
    [[nodiscard]] bool check();

private:
    bool saveNavigation();
    void saveChecks();
    bool saveHeadingLevel();
    bool saveDirectory(int id, const char* what);
    bool saveFile(int id, const char* what);
    bool refuse(const OrxString& message);
    void write(std::string_view setting, const RegEntry& entry);
    [[nodiscard]] bool isWanted(std::string_view setting) const;

    const PageControls& controls_;
    PageHost& host_;
    std::optional<std::span<const std::string_view>> wanted_;
    bool writes_ = true;
};

}  // namespace quillmark
