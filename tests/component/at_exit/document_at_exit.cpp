// A host whose document is a global that it never closes: the document's last page is written when
// the process ends, after the statics of the library have been destroyed. The program returns 0
// when the page exists.

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>

#include "dochtml/client.h"

namespace {

using quillmark::ComPointer;
using quillmark::Component;
using quillmark::Text;
namespace fs = std::filesystem;

/// Checks the page when the process ends.
class PageCheck {
public:
    PageCheck() = default;
    PageCheck(const PageCheck&) = delete;
    PageCheck& operator=(const PageCheck&) = delete;
    ~PageCheck() {
        if (directory.empty()) {
            return;
        }
        std::ifstream in(directory / "rep_dtl.htm");
        const std::string page(std::istreambuf_iterator<char>(in), {});
        in.close();
        std::error_code error;
        fs::remove_all(directory, error);
        if (page.find("The last words.") == std::string::npos) {
            std::cerr << "The page at the end of the process is: " << page << '\n';
            std::_Exit(1);
        }
    }

    fs::path directory;
};

// The last one is destroyed first.
PageCheck pageCheck;
ComPointer<::IDocument> document;

void writeReport(const std::string& library) {
    document = Component::fromLibrary(library).createDocument();
    document->overrideRegistry(Text(u"Html").get(), Text(u"StyleSheet").get(), nullptr, 0);
    document->create(Text((pageCheck.directory / "rep.htm").u16string()).get());
    document->setStyle(Text(u"Normal").get());
    document->insertText(Text(u"The last words.").get());
    document->insertEndl();
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::cerr << "Usage: document_at_exit LIBRARY DIRECTORY\n";
        return 2;
    }
    try {
        pageCheck.directory = fs::absolute(argv[2]).make_preferred();
        fs::create_directories(pageCheck.directory);
        writeReport(argv[1]);
    } catch (const std::exception& failure) {
        std::cerr << "document_at_exit: " << failure.what() << '\n';
        return 1;
    }
    if (fs::exists(pageCheck.directory / "rep_dtl.htm")) {
        std::cerr << "The page was written before the end.\n";
        return 1;
    }
    return 0;
}
