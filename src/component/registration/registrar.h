#pragma once

#include <string>
#include <utility>
#include <vector>

#include "component/registration/class_key_store.h"
#include "component/registration/registration_script.h"

namespace quillmark {

/// Writes or removes the keys of a library, all or none: after a failure it restores the previous
/// state. The same table of keys serves registration and removal.
///
///     Registrar registrar(store, keys);
///     if (SUCCEEDED(registrar.registerKeys())) { registrar.keep(); }
///
/// The destructor undoes all changes unless `keep` has succeeded.
class Registrar {
public:
    Registrar(ClassKeyStore& store, std::vector<RegisteredKey> keys)
        : store_(store), keys_(std::move(keys)) {}
    Registrar(const Registrar&) = delete;
    Registrar& operator=(const Registrar&) = delete;
    ~Registrar();

    [[nodiscard]] HRESULT registerKeys();
    /// Removes every key that is not shared, with its subkeys.
    [[nodiscard]] HRESULT unregisterKeys();
    /// Makes the changes permanent.
    [[nodiscard]] HRESULT keep();

private:
    [[nodiscard]] std::vector<std::string> ownedRoots() const;
    void remember();
    [[nodiscard]] HRESULT writeKey(const RegisteredKey& key);
    [[nodiscard]] HRESULT writeTree(const std::string& path, const KeyTree& tree);
    void takeBack() noexcept;

    ClassKeyStore& store_;
    std::vector<RegisteredKey> keys_;
    /// The state before the changes: the owned keys, and the shared keys that did not exist.
    std::vector<std::pair<std::string, std::optional<KeyTree>>> before_;
};

}  // namespace quillmark
