#include "command_line/default_install_dir.h"

#include <utility>

#include "command_line/installed_files.h"
#include "platform/files/drive_table.h"
#include "platform/text_encoding.h"
#include "settings/settings_table.h"

namespace quillmark {

namespace {

bool isInstallDir(const OrxString& group, const OrxString& name) {
    return findSetting(group, name) == findSetting(settingsGroup, "InstallDir");
}

}  // namespace

DefaultInstallDir::DefaultInstallDir(std::shared_ptr<SettingsStore> store,
                                     const std::string& executable)
    : store_(std::move(store)) {
    if (const auto directory = installedSupportFiles(executable)) {
        const TextEncoding::Scope scope(TextEncoding::utf8());
        directory_ = driverPath(*directory);
    }
}

std::optional<OrxString> DefaultInstallDir::read(const OrxString& group,
                                                 const OrxString& name) const {
    std::optional<OrxString> stored = store_->read(group, name);
    const bool missing = !stored || stored->isEmpty();
    const bool applies = missing && !directory_.isEmpty() && isInstallDir(group, name);
    return applies ? std::optional(directory_) : stored;
}

bool DefaultInstallDir::write(const OrxString& group, const OrxString& name,
                              const OrxString& value) {
    return store_->write(group, name, value);
}

}  // namespace quillmark
