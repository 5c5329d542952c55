#pragma once

#include <string>
#include <utility>
#include <vector>

#include "component/registration/class_key_store.h"
#include "component/registration/registration_script.h"

namespace quillmark {

/// Writes or removes the keys of a library, all or none: what was changed before a failure is put
/// back as it was. One table of keys drives both directions.
///
///     Registrar registrar(store, keys);
///     if (SUCCEEDED(registrar.registerKeys())) { registrar.keep(); }
///
/// Changes that nobody says `keep` to are taken back at the end.
class Registrar {
public:
    Registrar(ClassKeyStore& store, std::vector<RegisteredKey> keys)
        : store_(store), keys_(std::move(keys)) {}
    Registrar(const Registrar&) = delete;
    Registrar& operator=(const Registrar&) = delete;
    ~Registrar();

    [[nodiscard]] HRESULT registerKeys();
    /// Removes every key that is not shared, with all below it.
    [[nodiscard]] HRESULT unregisterKeys();
    /// Makes the changes last.
    [[nodiscard]] HRESULT keep();

private:
    [[nodiscard]] std::vector<std::string> ownedRoots() const;
    void remember();
    [[nodiscard]] HRESULT writeKey(const RegisteredKey& key);
    [[nodiscard]] HRESULT writeTree(const std::string& path, const KeyTree& tree);
    void takeBack() noexcept;

    ClassKeyStore& store_;
    std::vector<RegisteredKey> keys_;
    /// What was there before: the owned keys and the shared ones that were missing.
    std::vector<std::pair<std::string, std::optional<KeyTree>>> before_;
};

}  // namespace quillmark
