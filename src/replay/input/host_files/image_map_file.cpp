#include "replay/input/host_files/image_map_file.h"

#include <string>
#include <utility>

#include "replay/input/bad_input.h"
#include "replay/input/host_files/json_file.h"

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
        texts.push_back(ownedText(text));
    }
    return texts;
}

}  // namespace

ImageMapFile::ImageMapFile(const std::filesystem::path& file, std::string_view shown) {
    const JsonDocument document = readJsonObject(file, shown);
    for (const auto& member : document.GetObject()) {
        const std::string place = std::string(shown) + ": " + std::string(utf8Text(member.name));
        pictures_[ownedText(member.name)] = readTexts(member.value, place);
    }
}

const ImageMapFile::Pictures& ImageMapFile::picturesIn(const TextEncoding& encoding) {
    if (const auto known = encoded_.find(&encoding); known != encoded_.end()) {
        return known->second;
    }
    Pictures converted;
    for (const auto& [name, texts] : pictures_) {
        std::vector<OrxString>& list = converted[encoding.fromUtf8(name)];
        list.clear();
        for (const OrxString& text : texts) {
            list.push_back(encoding.fromUtf8(text));
        }
    }
    // Without memory for all of them none is known.
    return encoded_.emplace(&encoding, std::move(converted)).first->second;
}

void ImageMapFile::getRegions(const OrxString& picture, std::vector<OrxString>& regions) {
    const Pictures& pictures = picturesIn(TextEncoding::current());
    if (const auto hit = pictures.find(picture); hit != pictures.end()) {
        regions = hit->second;
    }
}

}  // namespace quillmark::replay
