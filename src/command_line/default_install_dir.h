#pragma once

#include <memory>
#include <string>

#include "settings/settings_store.h"

namespace quillmark {

/// A settings store in which the setting "InstallDir" defaults to the support files installed with
/// the program. The default applies when the setting is missing or empty.
class DefaultInstallDir final : public SettingsStore {
public:
    /// `executable` is the path of the program: the system's own name, in UTF-8.
    DefaultInstallDir(std::shared_ptr<SettingsStore> store, const std::string& executable);

    [[nodiscard]] std::optional<OrxString> read(const OrxString& group,
                                                const OrxString& name) const override;
    [[nodiscard]] bool write(const OrxString& group, const OrxString& name,
                             const OrxString& value) override;
    [[nodiscard]] OrxString problem() const override { return store_->problem(); }

    /// The default in the driver's form, in UTF-8; empty when no support files are installed.
    [[nodiscard]] const OrxString& directory() const noexcept { return directory_; }

private:
    std::shared_ptr<SettingsStore> store_;
    OrxString directory_;
};

}  // namespace quillmark
