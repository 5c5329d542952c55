// A file of image maps with any bytes is read or refused; what was read can be written into a page.

#include <string>

#include "diagram/image_map.h"
#include "replay/input/bad_input.h"
#include "replay/input/host_files/image_map_file.h"
#include "support/byte_source.h"
#include "support/require.h"
#include "support/temp_dir.h"

namespace quillmark::fuzzing {
namespace {

/// Writes the maps of pictures that the seeds have.
void writeMaps() {
    std::string markup;
    ImageMapWriter maps;
    const ImageMapWriter::Output output{
        .write = [&](std::string_view piece) { markup.append(piece); },
        .reference = [&](const OrxString& /*bookmark*/,
                         const OrxString& piece) { markup.append(piece.view()); }};
    for (const char* picture : {"a.gif", "C:\\in\\a.gif", ""}) {
        maps.write(picture, output);
    }
}

}  // namespace
}  // namespace quillmark::fuzzing

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace quillmark;
    using namespace quillmark::fuzzing;
    static const TempDir directory;
    directory.put("maps.json", ByteSource(data, size).rest());
    try {
        replay::ImageMapFile maps(directory.nativeFile("maps.json"), "maps.json");
        CImageMapInterface* const before = CImageMapInterface::setInterface(&maps);
        writeMaps();
        CImageMapInterface::setInterface(before);
    } catch (const replay::BadInput&) {
        // Refused, with a message.
    }
    return 0;
}
