#pragma once

#include <memory>
#include <optional>

#include "foundation/orx_string.h"

namespace quillmark {

/// Where settings are kept between runs: named texts in named groups.
///
/// The host hands its own in with `RegisterBase::setStore`. Group and name are matched ignoring
/// case. A store may be reached from several threads at once.
class SettingsStore {
public:
    virtual ~SettingsStore() = default;
    /// The text kept, or nothing.
    [[nodiscard]] virtual std::optional<OrxString> read(const OrxString& group,
                                                        const OrxString& name) const = 0;
    /// Keeps the text at once. False when it could not be kept; what was kept before still is.
    [[nodiscard]] virtual bool write(const OrxString& group, const OrxString& name,
                                     const OrxString& value) = 0;
    /// What is wrong with the store in words (damaged, not readable), empty when nothing is.
    [[nodiscard]] virtual OrxString problem() const { return {}; }
};

/// A store in an INI file: a section a group, `Name=Value`, UTF-8. A write goes to a temporary
/// file that then takes the place of the old one; comments and unknown lines are kept.
[[nodiscard]] std::shared_ptr<SettingsStore> makeIniSettingsStore(const OrxString& fileName);

/// The user's own store: the registry on Windows, elsewhere "quillmark/settings.ini" in the
/// user's configuration directory.
[[nodiscard]] std::shared_ptr<SettingsStore> makeUserSettingsStore();

/// Where `makeUserSettingsStore` keeps its values, for a person to read.
[[nodiscard]] OrxString userSettingsLocation();

}  // namespace quillmark
