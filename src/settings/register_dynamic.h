#pragma once

#include "settings/register_base.h"

namespace quillmark {

/// Straight access to the settings store; overrides do not reach it.
class RegisterDynamic : public RegisterBase {
public:
    /// `flag` belongs to the host's settings library; every call of the driver passes false.
    [[nodiscard]] RegEntry read(const OrxString& group, const OrxString& name,
                                const RegEntry& fallback, bool flag = false) const;
    /// False when the store could not keep the value.
    bool write(const OrxString& group, const OrxString& name, const RegEntry& entry,
               bool flag = false);
};

}  // namespace quillmark
