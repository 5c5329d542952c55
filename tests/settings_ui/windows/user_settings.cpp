#include "settings_ui/windows/user_settings.h"

#include <string>

#include "platform/windows/windows_api.h"
#include "settings/settings_store.h"

namespace quillmark {

void removeUserSettings() {
    // The location begins with the name of the root key.
    const std::string place = userSettingsLocation().str();
    RegDeleteTreeA(HKEY_CURRENT_USER, place.substr(place.find('\\') + 1).c_str());
}

}  // namespace quillmark
