#pragma once

#include <cstdint>
#include <functional>
#include <string_view>

#include "foundation/orx_string.h"

namespace quillmark {

/// Writes client-side image maps for the pictures of one document.
///
/// The host's image map service tells which regions of a picture can be clicked and which
/// bookmark each leads to; a host without the service, or a picture without regions, gets no map.
///
///     ImageMapWriter maps;
///     page.append("<IMG SRC=\"pix/a.gif\"");
///     maps.write("C:\\pics\\a.gif", {writeOut, referenceBookmark});
///     page.append(">");                  // closes the picture's tag, or the map's end tag
class ImageMapWriter {
public:
    /// Where the markup goes.
    struct Output {
        /// Takes markup as it is to be written.
        std::function<void(std::string_view markup)> write;
        /// Takes the markup of one region, in which the bookmark's name stands bare where its
        /// reference belongs. The reference replaces the first occurrence of that name in the
        /// whole markup, be it in the region's own name or coordinates.
        std::function<void(const OrxString& bookmark, const OrxString& markup)> reference;
    };

    /// Begins a document: its first map is "map0" again.
    void restart() noexcept { count_ = 0; }
    /// Number of the next map.
    [[nodiscard]] std::int32_t count() const noexcept { return count_; }

    /// Writes the map of `picture`, the name exactly as the host gave it, between the attributes
    /// of its IMG tag and the closing ">". Writes nothing when it has no regions. A region
    /// without a target or without coordinates is passed over.
    void write(const OrxString& picture, const Output& output);

private:
    std::int32_t count_ = 0;
};

}  // namespace quillmark
