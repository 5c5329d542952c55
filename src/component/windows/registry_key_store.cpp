#include <utility>
#include <vector>

#include "component/registration/class_key_store.h"
#include "component/windows/wide_text.h"
#include "platform/windows/registry_key.h"

namespace quillmark {
namespace {

HRESULT resultOf(LSTATUS status) noexcept {
    return HRESULT_FROM_WIN32(static_cast<unsigned long>(status));
}

/// A text value is converted to UTF-8 without trailing zeros. Other values stay unchanged.
KeyValue valueOf(DWORD type, const std::vector<BYTE>& bytes) {
    if (type != REG_SZ) {
        return {type, std::string(bytes.begin(), bytes.end())};
    }
    std::wstring_view text(reinterpret_cast<const wchar_t*>(bytes.data()),
                           bytes.size() / sizeof(wchar_t));
    while (!text.empty() && text.back() == L'\0') {
        text.remove_suffix(1);
    }
    return {KeyValue::textType, toUtf8(text)};
}

struct KeySizes {
    DWORD children = 0;
    DWORD longestChild = 0;
    DWORD values = 0;
    DWORD longestName = 0;
    DWORD longestValue = 0;
};

KeySizes sizesOf(HKEY key) {
    KeySizes sizes;
    RegQueryInfoKeyW(key, nullptr, nullptr, nullptr, &sizes.children, &sizes.longestChild, nullptr,
                     &sizes.values, &sizes.longestName, &sizes.longestValue, nullptr, nullptr);
    return sizes;
}

void readValues(HKEY key, const KeySizes& sizes, KeyTree& tree) {
    std::wstring name(sizes.longestName + 1, L'\0');
    std::vector<BYTE> bytes(sizes.longestValue);
    for (DWORD index = 0; index < sizes.values; ++index) {
        auto nameLength = static_cast<DWORD>(name.size());
        auto size = static_cast<DWORD>(bytes.size());
        DWORD type = 0;
        if (RegEnumValueW(key, index, name.data(), &nameLength, nullptr, &type, bytes.data(),
                          &size) == ERROR_SUCCESS) {
            tree.values.emplace(toUtf8({name.data(), nameLength}),
                                valueOf(type, {bytes.begin(), bytes.begin() + size}));
        }
    }
}

std::optional<KeyTree> readTree(HKEY parent, const std::wstring& path) {
    RegistryKey key;
    if (key.open(parent, path, KEY_READ) != ERROR_SUCCESS) {
        return std::nullopt;
    }
    KeyTree tree;
    const KeySizes sizes = sizesOf(key.get());
    readValues(key.get(), sizes, tree);
    std::wstring name(sizes.longestChild + 1, L'\0');
    for (DWORD index = 0; index < sizes.children; ++index) {
        auto length = static_cast<DWORD>(name.size());
        if (RegEnumKeyExW(key.get(), index, name.data(), &length, nullptr, nullptr, nullptr,
                          nullptr) != ERROR_SUCCESS) {
            continue;
        }
        const std::wstring child(name.data(), length);
        if (auto subtree = readTree(key.get(), child)) {
            tree.children.emplace(toUtf8(child), std::move(*subtree));
        }
    }
    return tree;
}

class RegistryKeyStore final : public ClassKeyStore {
public:
    [[nodiscard]] std::optional<KeyTree> read(const std::string& path) const override {
        return readTree(HKEY_CLASSES_ROOT, toWide(path));
    }

    [[nodiscard]] HRESULT createKey(const std::string& path) override {
        RegistryKey key;
        return resultOf(key.create(HKEY_CLASSES_ROOT, toWide(path), KEY_READ | KEY_WRITE));
    }

    [[nodiscard]] HRESULT setValue(const std::string& path, const std::string& name,
                                   const KeyValue& value) override {
        RegistryKey key;
        const LSTATUS opened = key.create(HKEY_CLASSES_ROOT, toWide(path), KEY_READ | KEY_WRITE);
        if (opened != ERROR_SUCCESS) {
            return resultOf(opened);
        }
        const std::wstring wideName = toWide(name);
        if (value.type != KeyValue::textType) {
            return resultOf(RegSetValueExW(key.get(), wideName.c_str(), 0, value.type,
                                           reinterpret_cast<const BYTE*>(value.data.data()),
                                           static_cast<DWORD>(value.data.size())));
        }
        const std::wstring text = toWide(value.data);
        return resultOf(RegSetValueExW(key.get(), wideName.c_str(), 0, REG_SZ,
                                       reinterpret_cast<const BYTE*>(text.c_str()),
                                       static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t))));
    }

    [[nodiscard]] HRESULT removeTree(const std::string& path) override {
        const LSTATUS status = RegDeleteTreeW(HKEY_CLASSES_ROOT, toWide(path).c_str());
        return status == ERROR_FILE_NOT_FOUND ? S_OK : resultOf(status);
    }

    [[nodiscard]] HRESULT commit() override { return S_OK; }
};

}  // namespace

HRESULT openClassKeyStore(std::unique_ptr<ClassKeyStore>& store) {
    store = std::make_unique<RegistryKeyStore>();
    return S_OK;
}

}  // namespace quillmark
