#include "replay/input/image_map_file.h"

#include <string>

#include "replay/input/bad_input.h"
#include "replay/input/json_file.h"

namespace quillmark::replay {

namespace {

std::vector<OrxString> readTexts(const JsonValue& list, const std::string& place) {
    if (!list.IsArray()) {
        throw BadInput(place + ": the regions must be a list of strings");
    }
    std::vector<OrxString> texts;
    for (const JsonValue& text : list.GetArray()) {
        if (!text.IsString()) {
            throw BadInput(place + ": the regions must be a list of strings");
        }
        texts.push_back(narrowText(text));
    }
    return texts;
}

}  // namespace

ImageMapFile::ImageMapFile(const std::filesystem::path& file, std::string_view shown) {
    const JsonDocument document = readJsonObject(file, shown);
    for (const auto& member : document.GetObject()) {
        const std::string place = std::string(shown) + ": " + std::string(utf8Text(member.name));
        pictures_[narrowText(member.name)] = readTexts(member.value, place);
    }
}

void ImageMapFile::getRegions(const OrxString& picture, std::vector<OrxString>& regions) {
    if (const auto hit = pictures_.find(picture); hit != pictures_.end()) {
        regions = hit->second;
    }
}

}  // namespace quillmark::replay
