#include "faults/stage.h"

#include <filesystem>
#include <fstream>
#include <iterator>

#include "host/quillmark_mode.h"

namespace quillmark::testing {

namespace {

constexpr const char* model = R"({"schemaType": 1, "elements": {
    "0x0000000700000005": {"class": "Operation", "attributes": {"visibility": "public"}},
    "0x0000000700000006": {"class": "Class", "attributes":
        {"kind": "interface", "userDefinedMetaClass": "A metaclass of the user"}},
    "0x0000000700000008": {"class": "Package", "attributes": {}}}})";

}  // namespace

Stage::Stage() {
    for (const char* const name : {"in/inst/pix", "in/inst/navigator/icons", "in/pixs"}) {
        std::filesystem::create_directories(nativeFile(name));
    }
    const std::map<std::string, std::string> files = {
        {"in/pic.gif", "GIF89a"},
        {"in/photo.jpg", "JPEG"},
        {"in/notes.txt", "first line\nsecond line of the notes\r\n\nlast"},
        {"in/icons.zip", "PK icons of the user"},
        {"in/inst/default.css", "P { }\n"},
        {"in/inst/toc2.jar", "PK jar"},
        {"in/inst/toc2_OLD.jar", "PK old jar"},
        {"in/inst/toc2.jnlp", "<jnlp/>"},
        {"in/inst/icons.zip", "PK icons"},
        {"in/inst/navigator/order.txt", "a.js\nb.css\nc.js\n"},
        {"in/inst/navigator/a.js", "var a;"},
        {"in/inst/navigator/b.css", "b { }"},
        {"in/inst/navigator/c.js", "var c;"},
        {"in/inst/navigator/icons/__None.gif", "GIF none"},
        {"in/inst/navigator/icons/Operation_public.gif", "GIF operation"},
        {"in/pixs/locate_in_brw.JPG", "JPEG button"},
        {"in/pixs/locate_in_brw_button_mouse_over.JPG", "JPEG button"},
        {"in/model.json", model},
        {"in/settings.ini", "[Settings]\nInstallDir=" + in() + "\\inst\nUserFilesDir=" + in() +
                                "\nTestLevel=1\n[Html]\nUnknown=x\n"},
        {"in/Veltrano.ini", "[Quillmark]\nUseJavaPre7=FALSE\n"},
    };
    for (const auto& [name, bytes] : files) {
        dir_.put(name, bytes);
    }
    for (const char* const name : {"forwardON", "forwardOFF", "backON", "backOFF"}) {
        dir_.put(OrxString("in/inst/pix/") + name + ".gif", "GIF arrow");
    }
    const std::string picture = OrxString(in()).replaceStr("\\", "\\\\").str() + "\\\\pic.gif";
    dir_.put("in/maps.json", "{\"" + picture + R"(": ["a", "a target of the map", "0,0,9,9,0,9",
        "b", "here", "1,1,2,2,1,2", "c", "", "x", "d", "a target that never comes", "5,5,6"]})");
    clear();
}

void Stage::clear() const {
    std::filesystem::current_path(nativeFile(""));
    std::filesystem::remove_all(nativeFile("out"));
    std::filesystem::create_directories(nativeFile("out"));
}

FileTree Stage::written(const std::string& start) const {
    FileTree files;
    const std::filesystem::path root = nativeFile("out");
    for (const auto& entry : std::filesystem::recursive_directory_iterator(root)) {
        const std::string name = entry.path().lexically_relative(root).generic_string();
        if (entry.is_regular_file() && entry.path().filename().string().starts_with(start)) {
            std::ifstream stream(entry.path(), std::ios::binary);
            files[name] = std::string(std::istreambuf_iterator<char>(stream), {});
        }
    }
    return files;
}

StageServices::StageServices(const Stage& stage)
    : model(stage.nativeFile("in/model.json"), "model.json"),
      imageMaps(stage.nativeFile("in/maps.json"), "maps.json") {
    settings.set("Settings", "InstallDir", stage.in() + "\\inst");
    settings.set("Settings", "UserFilesDir", stage.in());
    settings.set("Settings", "TestLevel", "1");
    MMSchema::setSchema(&model);
    CQuillmarkMode::SetSchemaType(model.schemaType());
    CImageMapInterface::setInterface(&imageMaps);
}

StageServices::~StageServices() {
    MMSchema::setSchema(nullptr);
    CQuillmarkMode::SetSchemaType(0);
    CImageMapInterface::setInterface(nullptr);
}

}  // namespace quillmark::testing
