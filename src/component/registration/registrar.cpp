#include "component/registration/registrar.h"

#include <algorithm>

#include "component/module/boundary.h"

namespace quillmark {

Registrar::~Registrar() {
    takeBack();
}

HRESULT Registrar::registerKeys() {
    remember();
    for (const RegisteredKey& key : keys_) {
        const HRESULT written = writeKey(key);
        if (FAILED(written)) {
            return written;
        }
    }
    return S_OK;
}

HRESULT Registrar::unregisterKeys() {
    remember();
    for (const std::string& root : ownedRoots()) {
        const HRESULT removed = store_.removeTree(root);
        if (FAILED(removed)) {
            return removed;
        }
    }
    return S_OK;
}

HRESULT Registrar::keep() {
    const HRESULT kept = store_.commit();
    if (SUCCEEDED(kept)) {
        before_.clear();
    }
    return kept;
}

/// The topmost keys that belong to the library alone.
std::vector<std::string> Registrar::ownedRoots() const {
    std::vector<std::string> roots;
    for (const RegisteredKey& key : keys_) {
        const bool isBelow = std::any_of(roots.begin(), roots.end(), [&](const std::string& root) {
            return key.path.starts_with(root + '\\');
        });
        if (!key.isShared && !isBelow) {
            roots.push_back(key.path);
        }
    }
    return roots;
}

void Registrar::remember() {
    before_.clear();
    for (const RegisteredKey& key : keys_) {
        if (key.isShared && !store_.read(key.path)) {
            before_.emplace_back(key.path, std::nullopt);
        }
    }
    for (const std::string& root : ownedRoots()) {
        before_.emplace_back(root, store_.read(root));
    }
}

HRESULT Registrar::writeKey(const RegisteredKey& key) {
    HRESULT result = key.replacesOld ? store_.removeTree(key.path) : S_OK;
    if (SUCCEEDED(result)) {
        result = store_.createKey(key.path);
    }
    if (SUCCEEDED(result) && key.value) {
        result = store_.setValue(key.path, {}, {KeyValue::textType, *key.value});
    }
    for (const auto& [name, value] : key.namedValues) {
        if (SUCCEEDED(result)) {
            result = store_.setValue(key.path, name, {KeyValue::textType, value});
        }
    }
    return result;
}

HRESULT Registrar::writeTree(const std::string& path, const KeyTree& tree) {
    HRESULT result = store_.createKey(path);
    for (const auto& [name, value] : tree.values) {
        if (SUCCEEDED(result)) {
            result = store_.setValue(path, name, value);
        }
    }
    for (const auto& [name, child] : tree.children) {
        if (SUCCEEDED(result)) {
            std::string childPath = path;
            childPath += '\\';
            childPath += name;
            result = writeTree(childPath, child);
        }
    }
    return result;
}

/// Restores as much as possible. Failures are ignored, because the caller already reports one.
void Registrar::takeBack() noexcept {
    if (before_.empty()) {
        return;
    }
    runOperation([this] {
        while (!before_.empty()) {
            const auto [path, tree] = std::move(before_.back());
            before_.pop_back();
            HRESULT result = store_.removeTree(path);
            if (SUCCEEDED(result) && tree) {
                result = writeTree(path, *tree);
            }
        }
        static_cast<void>(store_.commit());
    });
}

}  // namespace quillmark
