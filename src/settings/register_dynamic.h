#pragma once

#include "settings/register_base.h"

namespace quillmark {

/// Direct access to the settings store, without overrides.
class RegisterDynamic : public RegisterBase {
public:
    /// The stored value of that group and name, or else `fallback`. `flag` has a meaning in the
    /// host's settings library only. The driver always passes false.
    [[nodiscard]] RegEntry read(const OrxString& group, const OrxString& name,
                                const RegEntry& fallback, bool flag = false) const;
    /// Stores a value at once. False if the store could not keep it.
    bool write(const OrxString& group, const OrxString& name, const RegEntry& entry,
               bool flag = false);
};

}  // namespace quillmark
