#pragma once

#include "foundation/orx_string.h"

namespace quillmark {

/// The host's application profile; it tells where the ini file of the modelling tool lies.
class AppProfileInterface {
public:
    virtual ~AppProfileInterface() = default;
    /// The path that takes the place of the name "Veltrano.ini".
    [[nodiscard]] virtual OrxString profilePath() const = 0;

    /// The host's, or null when there is none.
    [[nodiscard]] static AppProfileInterface* getInterface() noexcept;
    /// Hands one in (it stays the caller's); null takes it back. Returns the one before.
    static AppProfileInterface* setInterface(AppProfileInterface* profile) noexcept;
};

}  // namespace quillmark
