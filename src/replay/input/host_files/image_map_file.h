#pragma once

#include <filesystem>
#include <map>
#include <string_view>
#include <vector>

#include "host/image_map_interface.h"
#include "platform/text_encoding.h"

namespace quillmark::replay {

/// Regions of pictures from a JSON file: an object with one member per picture. Its name is the
/// file name that the calls use; its value is a list with three texts per region: name, target
/// and coordinates. It answers in the encoding in force.
class ImageMapFile final : public CImageMapInterface {
public:
    /// Throws `BadInput` when the file cannot be read or has other contents.
    ImageMapFile(const std::filesystem::path& file, std::string_view shown);

    void getRegions(const OrxString& picture, std::vector<OrxString>& regions) override;

private:
    using Pictures = std::map<OrxString, std::vector<OrxString>>;

    [[nodiscard]] const Pictures& picturesIn(const TextEncoding& encoding);

    /// In UTF-8.
    Pictures pictures_;
    /// The same in each encoding that was asked for: a name may lose characters in it.
    std::map<const TextEncoding*, Pictures> encoded_;
};

}  // namespace quillmark::replay
