#pragma once

#include <memory>
#include <optional>

#include "foundation/orx_string.h"

namespace quillmark {

/// Keeps settings between runs, as texts with a group and a name. All three are in UTF-8 on every
/// system, whatever encoding a document has.
///
/// A host installs its own store with `RegisterBase::setStore`. An implementation must find groups
/// and names in any case, and must allow calls from several threads at once.
class SettingsStore {
public:
    virtual ~SettingsStore() = default;
    /// The stored text, or nothing.
    [[nodiscard]] virtual std::optional<OrxString> read(const OrxString& group,
                                                        const OrxString& name) const = 0;
    /// Stores a text at once. False on failure, and then the old text is kept.
    [[nodiscard]] virtual bool write(const OrxString& group, const OrxString& name,
                                     const OrxString& value) = 0;
    /// Describes what is wrong with the store (damaged, not readable). Empty if nothing is.
    [[nodiscard]] virtual OrxString problem() const { return {}; }
};

/// A store in an INI file in UTF-8, with one section per group and one `Name=Value` line per
/// setting. The file name is in the encoding in force. A write creates a temporary file that then
/// replaces the old one (see `FileSystem::rewriteFile`); other processes that write to the same
/// file wait for it. Comments and unknown lines are kept.
[[nodiscard]] std::shared_ptr<SettingsStore> makeIniSettingsStore(const OrxString& fileName);

/// The user's own store: the registry on Windows, elsewhere the file "quillmark/settings.ini" in
/// the user's configuration directory.
[[nodiscard]] std::shared_ptr<SettingsStore> makeUserSettingsStore();

/// The location of the user's own store, to be shown to the user, in the encoding in force.
[[nodiscard]] OrxString userSettingsLocation();

}  // namespace quillmark
