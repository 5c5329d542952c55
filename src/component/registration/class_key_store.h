#pragma once

#include <algorithm>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>

#include "dochtml/automation.h"
#include "foundation/ascii.h"

namespace quillmark {

/// A value of a key. Every store represents text as UTF-8 and keeps other types unchanged.
struct KeyValue {
    static constexpr std::uint32_t textType = 1;

    std::uint32_t type = textType;
    std::string data;

    friend bool operator==(const KeyValue&, const KeyValue&) = default;
};

/// Orders names and ignores the case of ASCII letters.
struct KeyNameOrder {
    [[nodiscard]] bool operator()(const std::string& a, const std::string& b) const noexcept {
        return std::ranges::lexicographical_compare(a, b, {}, ascii::toLower<char>,
                                                    ascii::toLower<char>);
    }
};

/// A key with all its values and subkeys. The default value has an empty name. Names are not
/// case-sensitive, but they keep the case in which they were created.
struct KeyTree {
    std::map<std::string, KeyValue, KeyNameOrder> values;
    std::map<std::string, KeyTree, KeyNameOrder> children;

    friend bool operator==(const KeyTree&, const KeyTree&) = default;
};

/// Stores the registered classes: the classes root of the registry, or a file of the user. In paths
/// "\" separates keys. The changing functions return `S_OK` or a failure.
class ClassKeyStore {
public:
    virtual ~ClassKeyStore() = default;

    /// The key with its subkeys, or nothing when it does not exist.
    [[nodiscard]] virtual std::optional<KeyTree> read(const std::string& path) const = 0;
    /// Creates the key and its parents. Keys that exist stay unchanged.
    [[nodiscard]] virtual HRESULT createKey(const std::string& path) = 0;
    [[nodiscard]] virtual HRESULT setValue(const std::string& path, const std::string& name,
                                           const KeyValue& value) = 0;
    /// Removes the key and its subkeys. Succeeds when the key does not exist.
    [[nodiscard]] virtual HRESULT removeTree(const std::string& path) = 0;
    /// Makes the changes permanent. Until then other processes may or may not see them.
    [[nodiscard]] virtual HRESULT commit() = 0;
};

/// Opens this system's store for the user who runs the process. Returns `REGDB_E_READREGDB` when
/// the store exists but cannot be read, and `REGDB_E_WRITEREGDB` when it cannot be changed. May
/// wait until other processes have finished their changes, so release the store soon.
[[nodiscard]] HRESULT openClassKeyStore(std::unique_ptr<ClassKeyStore>& store);

}  // namespace quillmark
