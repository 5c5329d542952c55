#pragma once

#include <optional>
#include <span>
#include <string_view>

#include "settings/reg_entry.h"
#include "settings_ui/page_host.h"

namespace quillmark {

/// Validates what the page's controls hold and writes it to the settings store, value by value
/// and each write at once. The first value that is refused ends it with a message; what stands
/// before it stays written. Whether the store kept the values is not looked at.
class SettingsSaver {
public:
    /// All settings of the page.
    SettingsSaver(const PageControls& controls, PageHost& host)
        : controls_(controls), host_(host) {}
    /// Those named alone, in the same order; the others are neither looked at nor written.
    SettingsSaver(const PageControls& controls, PageHost& host,
                  std::span<const std::string_view> wanted)
        : controls_(controls), host_(host), wanted_(wanted) {}

    /// True when everything was accepted.
    [[nodiscard]] bool save();

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
};

}  // namespace quillmark
