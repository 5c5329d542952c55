#pragma once

#include <cstdint>
#include <functional>
#include <string_view>

#include "foundation/orx_string.h"

namespace quillmark {

/// Writes client-side image maps for the pictures of one document.
///
/// The host's image map service knows the clickable regions of a picture and the bookmark that
/// each leads to. Without the service, or without regions, a picture gets no map.
///
///     ImageMapWriter maps;
///     page.append("<IMG SRC=\"pix/a.gif\"");
///     maps.write("C:\\pics\\a.gif", {writeOut, referenceBookmark});
///     page.append(">");                  // closes the picture's tag, or the map's end tag
class ImageMapWriter {
public:
    /// The receiver of the markup.
    struct Output {
        /// Writes markup as it is.
        std::function<void(std::string_view markup)> write;
        /// Writes the markup of one region, with the link instead of the first occurrence of
        /// the bookmark's name. That may be in the region's own name or coordinates.
        std::function<void(const OrxString& bookmark, const OrxString& markup)> reference;
    };

    /// Starts a new document: its first map is "map0".
    void restart() noexcept { count_ = 0; }

    /// Writes the map of a picture, between the attributes of its IMG tag and the closing ">".
    /// `picture` must be the name as the host gave it. Writes nothing if there are no regions.
    /// Skips regions without a target or without coordinates.
    void write(const OrxString& picture, const Output& output);

private:
    std::int32_t count_ = 0;
};

}  // namespace quillmark
