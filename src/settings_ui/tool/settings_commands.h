#pragma once

#include <memory>
#include <string>
#include <vector>

#include "settings_ui/tool/failure_recording_store.h"
#include "settings_ui/tool/settings_tool.h"
#include "settings_ui/tool/tool_options.h"

namespace quillmark {

/// Carries out the commands of the tool on the current settings store.
class SettingsCommands {
public:
    /// `installDir` is the default of the setting "InstallDir". `location` describes the store to
    /// the user (UTF-8).
    SettingsCommands(const FailureRecordingStore& store, OrxString installDir, std::string location,
                     const SettingsToolEnvironment& environment)
        : store_(store),
          installDir_(std::move(installDir)),
          location_(std::move(location)),
          environment_(environment) {}

    /// False if a value was refused; the page has shown the reason. Throws `BadUsage` before
    /// anything is changed.
    bool run(const ToolOptions& options);

private:
    void list() const;
    void get(const std::string& name) const;
    bool set(const std::vector<std::string>& assignments) const;
    bool edit() const;
    /// The user's terminal, or else the input of the tool.
    [[nodiscard]] std::unique_ptr<AnswerSource> answerSource() const;

    const FailureRecordingStore& store_;
    OrxString installDir_;
    std::string location_;
    const SettingsToolEnvironment& environment_;
};

}  // namespace quillmark
