#pragma once

#include <string>

#include "settings_ui/tool/settings_tool.h"
#include "settings_ui/tool/tool_options.h"
#include "settings_ui/tool/watched_store.h"

namespace quillmark {

/// The commands of the tool, on the store in force. They throw `BadUsage` before they change
/// anything; false means that a value was refused, which has been told.
class SettingsCommands {
public:
    /// `place` tells a person where the store lies (UTF-8).
    SettingsCommands(const WatchedStore& store, std::string place, const ToolSurroundings& around)
        : store_(store), place_(std::move(place)), around_(around) {}

    bool run(const ToolOptions& options);

private:
    void list() const;
    void get(const std::string& name) const;
    bool set(const std::vector<std::string>& assignments) const;
    bool edit() const;

    const WatchedStore& store_;
    std::string place_;
    const ToolSurroundings& around_;
};

}  // namespace quillmark
