#pragma once

#include <string>
#include <vector>

#include "call_stream.h"

namespace quillmark::manual {

/// The document file, cut as the driver cuts it.
struct DocumentName {
    explicit DocumentName(const std::string& document);
    /// File name of a detail page, without its directory.
    [[nodiscard]] std::string page(std::size_t number) const;

    std::string directory;
    std::string base;
    std::string extension;
};

/// The arrows of a page point at its neighbours' names in the page's own directory. Where the
/// manual goes from one directory to the next, the neighbour lies elsewhere: a bridge page under
/// its name leads on to it.
///
/// `directories` names the directory of each page, the first page's first. Each bridge is a
/// document of its own, without contents and arrows.
[[nodiscard]] CallStream bridgesBetween(const std::vector<std::string>& directories,
                                        const DocumentName& document,
                                        const std::string& pictureDirectory);

}  // namespace quillmark::manual
