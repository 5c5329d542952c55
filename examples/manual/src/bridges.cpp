#include "bridges.h"

#include <utility>

namespace quillmark::manual {

namespace {

constexpr int textValue = 2;
constexpr int numberValue = 1;
/// Neither contents (1) nor arrows (2); 0 would count as 1.
constexpr const char* plainPages = "4";

std::string up(const std::string& directory) {
    return directory.empty() ? "" : "../";
}
std::string into(const std::string& directory) {
    return directory.empty() ? "" : directory + '/';
}

class BridgeBuilder {
public:
    BridgeBuilder(const DocumentName& document, std::string pictureDirectory)
        : document_(document), pictureDirectory_(std::move(pictureDirectory)) {}

    /// Lays a page under the name of page `number` into `here`; the page itself is in `there`.
    void lay(std::size_t number, const std::string& here, const std::string& there) {
        const std::string target = up(here) + into(there) + document_.page(number);
        calls_.startOver();
        calls_.add("overrideRegistry", "Html", "Navig", plainPages, numberValue);
        calls_.add("overrideRegistry", "Html", "StyleSheet", "", textValue);
        calls_.add("overrideRegistry", "Html", "HtmlPixDir", up(here) + pictureDirectory_,
                   textValue);
        calls_.add("create", document_.directory + into(here) + document_.page(number));
        calls_.add("setOption", "title", "This way");
        calls_.add("insertText", "<META HTTP-EQUIV=\"Refresh\" CONTENT=\"0; URL=" + target + "\">");
        calls_.add("insertText",
                   "The manual goes on <A HREF=\"" + target + "\">in another directory</A>.");
        calls_.add("close");
    }
    CallStream take() { return std::move(calls_); }

private:
    const DocumentName& document_;
    std::string pictureDirectory_;
    CallStream calls_;
};

}  // namespace

DocumentName::DocumentName(const std::string& document) {
    const std::size_t separator = document.find_last_of("\\/");
    const std::size_t file = separator == std::string::npos ? 0 : separator + 1;
    const std::size_t dot = document.find_last_of('.');
    const bool hasExtension = dot != std::string::npos && dot >= file;
    directory = document.substr(0, file);
    base = document.substr(file, hasExtension ? dot - file : std::string::npos);
    extension = hasExtension ? document.substr(dot) : ".htm";
}

std::string DocumentName::page(std::size_t number) const {
    return base + "_dtl" + (number == 1 ? "" : std::to_string(number)) + extension;
}

CallStream bridgesBetween(const std::vector<std::string>& directories, const DocumentName& document,
                          const std::string& pictureDirectory) {
    BridgeBuilder bridges(document, pictureDirectory);
    for (std::size_t number = 1; number < directories.size(); ++number) {
        const std::string& here = directories[number - 1];
        const std::string& there = directories[number];
        if (here != there) {
            bridges.lay(number + 1, here, there);
            bridges.lay(number, there, here);
        }
    }
    return bridges.take();
}

}  // namespace quillmark::manual
