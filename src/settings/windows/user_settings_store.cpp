#include <memory>
#include <optional>
#include <string>

#include "foundation/utf8.h"
#include "platform/windows/registry_key.h"
#include "settings/settings_store.h"

namespace quillmark {

namespace {

constexpr const char* userKey = "Software\\Zorvane\\Quillmark";

std::wstring wideOfUtf8(std::string_view text) {
    const std::u16string wide = utf8::toUtf16(text);
    return {wide.begin(), wide.end()};
}

std::wstring groupPath(const OrxString& group) {
    return wideOfUtf8(userKey + ("\\" + group));
}

std::optional<OrxString> numberValue(const RegistryKey& key, const std::wstring& name) {
    DWORD number = 0;
    DWORD size = sizeof number;
    if (RegGetValueW(key.get(), nullptr, name.c_str(), RRF_RT_REG_DWORD, nullptr, &number, &size) !=
        ERROR_SUCCESS) {
        return std::nullopt;
    }
    return OrxString(std::to_string(static_cast<std::int32_t>(number)));
}

std::optional<OrxString> textValue(const RegistryKey& key, const std::wstring& name) {
    std::wstring text;
    DWORD size = 0;
    LSTATUS status =
        RegGetValueW(key.get(), nullptr, name.c_str(), RRF_RT_REG_SZ, nullptr, nullptr, &size);
    // Another process may store a longer text between the two calls.
    for (int i = 0; i < 3 && (status == ERROR_SUCCESS || status == ERROR_MORE_DATA); ++i) {
        text.resize(size / sizeof(wchar_t) + 1);
        size = static_cast<DWORD>(text.size() * sizeof(wchar_t));
        status = RegGetValueW(key.get(), nullptr, name.c_str(), RRF_RT_REG_SZ, nullptr, text.data(),
                              &size);
        if (status == ERROR_SUCCESS) {
            // Up to the first zero.
            const std::wstring_view value = text.c_str();
            return OrxString(utf8::fromUtf16(std::u16string(value.begin(), value.end())));
        }
    }
    return std::nullopt;
}

/// The user's branch of the registry, with one key per group and one text value per setting.
/// Numeric values that others have stored are read too.
class RegistrySettingsStore final : public SettingsStore {
public:
    [[nodiscard]] std::optional<OrxString> read(const OrxString& group,
                                                const OrxString& name) const override {
        RegistryKey key;
        if (key.open(HKEY_CURRENT_USER, groupPath(group), KEY_QUERY_VALUE) != ERROR_SUCCESS) {
            return std::nullopt;
        }
        const std::wstring wide = wideOfUtf8(name);
        std::optional<OrxString> text = textValue(key, wide);
        return text ? text : numberValue(key, wide);
    }

    [[nodiscard]] bool write(const OrxString& group, const OrxString& name,
                             const OrxString& value) override {
        // A text in the registry ends at its first zero.
        if (value.contains(std::string_view("\0", 1))) {
            return false;
        }
        RegistryKey key;
        const std::wstring text = wideOfUtf8(value);
        const auto size = static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t));
        return key.create(HKEY_CURRENT_USER, groupPath(group), KEY_SET_VALUE) == ERROR_SUCCESS &&
               RegSetValueExW(key.get(), wideOfUtf8(name).c_str(), 0, REG_SZ,
                              reinterpret_cast<const BYTE*>(text.c_str()), size) == ERROR_SUCCESS;
    }
};

}  // namespace

OrxString userSettingsLocation() {
    return OrxString("HKEY_CURRENT_USER\\") + userKey;
}

std::shared_ptr<SettingsStore> makeUserSettingsStore() {
    return std::make_shared<RegistrySettingsStore>();
}

}  // namespace quillmark
