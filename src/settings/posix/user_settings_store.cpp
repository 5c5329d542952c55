#include "platform/system_facts.h"
#include "settings/settings_store.h"

namespace quillmark {

OrxString userSettingsLocation() {
    // With the system's own separator, because the name is also shown to the user.
    return system_facts::userConfigurationDirectory()
        .append("/quillmark/settings.ini")
        .replaceStr("\\", "/");
}

std::shared_ptr<SettingsStore> makeUserSettingsStore() {
    return makeIniSettingsStore(userSettingsLocation());
}

}  // namespace quillmark
