#pragma once

#include <vector>

#include "foundation/orx_string.h"

namespace quillmark {

/// The host's image map service: which regions of a picture can be clicked.
class CImageMapInterface {
public:
    virtual ~CImageMapInterface() = default;
    /// Fills `regions` with triples: element name, target bookmark, polygon coordinates.
    /// `picture` is the name exactly as the host gave it to `insertImage`.
    virtual void getRegions(const OrxString& picture, std::vector<OrxString>& regions) = 0;

    /// The host's service, or null when there is none.
    [[nodiscard]] static CImageMapInterface* getInterface() noexcept;
    /// Hands one in (it stays the caller's); null takes it back. Returns the one before.
    static CImageMapInterface* setInterface(CImageMapInterface* service) noexcept;
};

}  // namespace quillmark
