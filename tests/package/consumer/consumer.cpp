// A host of a few lines: makes a document with the installed package and reads it back.
#include <fstream>
#include <iostream>
#include <iterator>
#include <memory>
#include <optional>
#include <string>

#include "driver/doc_html.h"
#include "settings/register_base.h"
#include "settings/settings_store.h"

namespace {

/// Settings that live as long as the program.
class FixedSettings final : public quillmark::SettingsStore {
public:
    std::optional<quillmark::OrxString> read(const quillmark::OrxString& group,
                                             const quillmark::OrxString& name) const override {
        if (group == "Settings" && name == "InstallDir") {
            return quillmark::OrxString(SUPPORT_DIR);
        }
        if (group == "Html" && name == "Navig") {
            return quillmark::OrxString("2");
        }
        return std::nullopt;
    }
    bool write(const quillmark::OrxString&, const quillmark::OrxString&,
               const quillmark::OrxString&) override {
        return false;
    }
};

std::string contentsOf(const std::string& fileName) {
    std::ifstream file(fileName, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

}  // namespace

int main() {
    quillmark::RegisterBase::setStore(std::make_shared<FixedSettings>());
    {
        quillmark::DocHtml document;
        document.create(u"hello.htm");
        document.insertText(u"Greetings from a consumer");
        document.close();
    }
    const std::string page = contentsOf("hello.htm");
    const bool told = page.find("Greetings from a consumer") != std::string::npos;
    const bool styled = !contentsOf("default.css").empty();
    std::cout << (told && styled ? "the page tells what it was told\n" : page);
    return told && styled ? 0 : 1;
}
