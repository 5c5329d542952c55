#include "settings_ui/effects.h"

#include <array>
#include <fstream>
#include <iterator>

#include "platform/files/drive_table.h"
#include "settings_ui/page_table.h"

namespace quillmark {

namespace {

constexpr std::array effectRows{
    Effect{"HtmlPixDir", "images", control::imagesDirectory, "images/icons.zip", "", true},
    Effect{"ExternalDocDir", "papers", control::documentsDirectory, "papers/note.txt", "", true},
    Effect{"StyleSheet", "%\\src\\mine.css", control::styleSheet, "rep_dtl.htm", "mine.css", true},
    Effect{"UseRelative", "false", control::relativePaths, "rep_dtl.htm", "\"file:///", true},
    Effect{"PassThrough", "true", control::passThrough, "rep_dtl.htm", "a&lt;&lt;b", true},
    Effect{"SupportOld", "true", control::olderBrowsers, "rep_sfrm.htm", "", true},
    Effect{"Navig", "3", control::arrows, "pix/backON.gif", "", true},
    Effect{"Navig", "2", control::contents, "rep_cnt.htm", "", false},
    Effect{"ShowIcons", "false", control::showIcons, "rep_cnt.htm", "ICONZIPFILE", false},
    Effect{"TOCLevel", "2", control::headingLevel, "rep_toc.dat", "Deep down", false},
    Effect{"IconFile", "%\\src\\mine.zip", control::iconFile, "pix/mine.zip", "", true},
    Effect{"LocateInBrowser", "false", control::locate, "rep_cnt.htm", "selectItemByUrl", false},
};

std::string replaced(std::string text, char from, const std::string& to) {
    for (std::size_t at = 0; (at = text.find(from, at)) != std::string::npos; at += to.size()) {
        text.replace(at, 1, to);
    }
    return text;
}

void write(const std::filesystem::path& file, const std::string& text) {
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << text;
}

std::string callsFor(const std::string& driverName) {
    const std::string dir = replaced(driverName, '\\', "\\\\");
    return "[\"create\",\"" + dir +
           "\\\\out\\\\rep.htm\"]\n"
           "[\"setStyle\",\"Heading 1\"]\n"
           "[\"insertText\",\"On top\"]\n"
           "[\"setStyle\",\"Heading 3\"]\n"
           "[\"insertText\",\"Deep down\"]\n"
           "[\"setStyle\",\"Normal\"]\n"
           "[\"insertText\",\"a<<b\"]\n"
           "[\"insertXref\",\"the note\",\"" +
           dir +
           "\\\\src\\\\note.txt\"]\n"
           "[\"insertLocate\"]\n"
           "[\"close\"]\n";
}

}  // namespace

std::span<const Effect> effects() noexcept {
    return effectRows;
}

EffectScene::EffectScene(const std::string& name)
    : directory_(std::filesystem::temp_directory_path() / name) {
    std::filesystem::remove_all(directory_);
    std::filesystem::create_directories(directory_);
    driverName_ = driverPath(directory_.string()).str();
    if (driverName_[1] != ':') {
        DriveTable::set('C', directory_.string());
        driverName_ = "C:";
    }
    for (const char* const installed :
         {"default.css", "icons.zip", "toc2.jnlp", "pix/forwardON.gif", "pix/forwardOFF.gif",
          "pix/backON.gif", "pix/backOFF.gif"}) {
        write(directory_ / "inst" / installed, installed);
    }
    for (const char* const own : {"note.txt", "mine.css", "mine.zip"}) {
        write(directory_ / "src" / own, own);
    }
    write(calls(), callsFor(driverName_));
    clear();
}

EffectScene::~EffectScene() {
    DriveTable::clear();
    std::error_code ignored;
    std::filesystem::remove_all(directory_, ignored);
}

std::string EffectScene::valueOf(const Effect& effect) const {
    return replaced(effect.value, '%', driverName_);
}

void EffectScene::clear() const {
    std::filesystem::remove_all(directory_ / "out");
    std::filesystem::create_directories(directory_ / "out");
}

bool EffectScene::shows(const Effect& effect) const {
    std::ifstream in(directory_ / "out" / effect.file, std::ios::binary);
    const std::string content{std::istreambuf_iterator<char>(in), {}};
    return in.is_open() && content.find(effect.text) != std::string::npos;
}

}  // namespace quillmark
