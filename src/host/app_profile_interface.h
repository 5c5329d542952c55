#pragma once

#include "foundation/orx_string.h"

namespace quillmark {

/// The host's application profile, which knows the ini file of the modelling tool.
class AppProfileInterface {
public:
    virtual ~AppProfileInterface() = default;
    /// The path to use instead of the name "Veltrano.ini", in the 8-bit code page. A document in
    /// UTF-8 takes a path that is valid UTF-8 as such.
    [[nodiscard]] virtual OrxString profilePath() const = 0;

    /// The installed profile, or null.
    [[nodiscard]] static AppProfileInterface* getInterface() noexcept;
    /// Installs a profile, or none if null, and returns the one before. It is not owned and must
    /// stay alive while it is installed.
    static AppProfileInterface* setInterface(AppProfileInterface* profile) noexcept;
};

}  // namespace quillmark
