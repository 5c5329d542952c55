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

/// A value of a key. A text is UTF-8 under every store; other types are kept as they are.
struct KeyValue {
    static constexpr std::uint32_t textType = 1;

    std::uint32_t type = textType;
    std::string data;

    friend bool operator==(const KeyValue&, const KeyValue&) = default;
};

/// Orders names that are the same in any case of their ASCII letters.
struct KeyNameOrder {
    [[nodiscard]] bool operator()(const std::string& a, const std::string& b) const noexcept {
        return std::ranges::lexicographical_compare(a, b, {}, ascii::toLower<char>,
                                                    ascii::toLower<char>);
    }
};

/// A key with all that lies below it. The default value has the empty name. Keys and values are
/// found by their names in any case; they keep the case that they were made with.
struct KeyTree {
    std::map<std::string, KeyValue, KeyNameOrder> values;
    std::map<std::string, KeyTree, KeyNameOrder> children;

    friend bool operator==(const KeyTree&, const KeyTree&) = default;
};

/// Where classes are made known: the classes root of the registry, or a file of the user's.
/// Paths have "\" between keys. Every function answers `S_OK` or a failing result.
class ClassKeyStore {
public:
    virtual ~ClassKeyStore() = default;

    /// The key as it is, or nothing when it is not there.
    [[nodiscard]] virtual std::optional<KeyTree> read(const std::string& path) const = 0;
    /// Makes the key and those above it; one that is there is left as it is.
    [[nodiscard]] virtual HRESULT createKey(const std::string& path) = 0;
    [[nodiscard]] virtual HRESULT setValue(const std::string& path, const std::string& name,
                                           const KeyValue& value) = 0;
    /// Removes the key and what lies below it; one that is not there counts as removed.
    [[nodiscard]] virtual HRESULT removeTree(const std::string& path) = 0;
    /// Makes the changes last. Before it they may or may not be seen by others.
    [[nodiscard]] virtual HRESULT commit() = 0;
};

/// Opens the store of this system, for the user who runs the process. Answers `S_OK`, or
/// `REGDB_E_READREGDB` when it is there and cannot be read, `REGDB_E_WRITEREGDB` when it cannot be
/// changed. May wait for others who are changing it; let go of it soon.
[[nodiscard]] HRESULT openClassKeyStore(std::unique_ptr<ClassKeyStore>& store);

}  // namespace quillmark
