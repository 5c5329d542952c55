#pragma once

#include <filesystem>
#include <map>
#include <string_view>
#include <vector>

#include "host/image_map_interface.h"

namespace quillmark::replay {

/// Regions of pictures from a JSON file: an object with a list of texts (name, target,
/// coordinates, and again) for each picture's file name as the calls give it.
class ImageMapFile final : public CImageMapInterface {
public:
    /// Throws `BadInput` when the file cannot be read or holds something else.
    ImageMapFile(const std::filesystem::path& file, std::string_view shown);

    void getRegions(const OrxString& picture, std::vector<OrxString>& regions) override;

private:
    std::map<OrxString, std::vector<OrxString>> pictures_;
};

}  // namespace quillmark::replay
