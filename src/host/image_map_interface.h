#pragma once

#include <vector>

#include "foundation/orx_string.h"

namespace quillmark {

/// The host's image map service, which knows the clickable regions of a picture.
class CImageMapInterface {
public:
    virtual ~CImageMapInterface() = default;
    /// Fills `regions` with three texts per region: element name, target bookmark, and coordinates
    /// of the polygon. `picture` is the name exactly as the host passed it to `insertImage`.
    virtual void getRegions(const OrxString& picture, std::vector<OrxString>& regions) = 0;

    /// The installed service, or null.
    [[nodiscard]] static CImageMapInterface* getInterface() noexcept;
    /// Installs a service, or none if null, and returns the one before. It is not owned and must
    /// stay alive while it is installed.
    static CImageMapInterface* setInterface(CImageMapInterface* service) noexcept;
};

}  // namespace quillmark
