#pragma once

#include <string>

#include "component/registration/class_key_store.h"

namespace quillmark::testing {

/// Stores keys in memory. Any one change can be made to fail.
class MemoryKeyStore final : public ClassKeyStore {
public:
    KeyTree root;
    /// The number of the change that fails, counted from 1; 0 for none. Later ones succeed again.
    int failAt = 0;
    int changes = 0;

    [[nodiscard]] std::optional<KeyTree> read(const std::string& path) const override {
        const KeyTree* key = &root;
        for (std::size_t at = 0; at < path.size();) {
            const std::size_t end = std::min(path.find('\\', at), path.size());
            const auto child = key->children.find(path.substr(at, end - at));
            if (child == key->children.end()) {
                return std::nullopt;
            }
            key = &child->second;
            at = end + 1;
        }
        return *key;
    }
    [[nodiscard]] HRESULT createKey(const std::string& path) override {
        return change([&] { make(path); });
    }
    [[nodiscard]] HRESULT setValue(const std::string& path, const std::string& name,
                                   const KeyValue& value) override {
        return change([&] { make(path).values[name] = value; });
    }
    [[nodiscard]] HRESULT removeTree(const std::string& path) override {
        return change([&] {
            const std::size_t end = path.rfind('\\');
            if (end == std::string::npos) {
                root.children.erase(path);
            } else if (read(path.substr(0, end))) {
                make(path.substr(0, end)).children.erase(path.substr(end + 1));
            }
        });
    }
    [[nodiscard]] HRESULT commit() override {
        return change([] {});
    }

private:
    template <typename Body>
    HRESULT change(Body body) {
        if (++changes == failAt) {
            return E_ACCESSDENIED;
        }
        body();
        return S_OK;
    }
    KeyTree& make(const std::string& path) {
        KeyTree* key = &root;
        for (std::size_t at = 0; at < path.size();) {
            const std::size_t end = std::min(path.find('\\', at), path.size());
            key = &key->children[path.substr(at, end - at)];
            at = end + 1;
        }
        return *key;
    }
};

}  // namespace quillmark::testing
