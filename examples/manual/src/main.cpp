// An example of a report generator. It makes the calls that write the reference manual of
// IDocument, with the picture, texts, model and image maps that they need.

#include <filesystem>
#include <fstream>
#include <iostream>
#include <stdexcept>
#include <string>
#include <vector>

#include "bridges.h"
#include "manual.h"
#include "operations_markdown.h"

namespace {

namespace fs = std::filesystem;
using quillmark::manual::bridgesBetween;
using quillmark::manual::DocumentName;
using quillmark::manual::Manual;
using quillmark::manual::ManualData;
using quillmark::manual::operationsMarkdown;
using quillmark::manual::readManualData;

constexpr const char* usage =
    "usage: manual_generator [OPTIONS] DIRECTORY\n"
    "Writes into DIRECTORY what dochtml-replay needs to make the manual:\n"
    "  manual.jsonl      the calls\n"
    "  bridges.jsonl     the calls of the bridge pages between directories\n"
    "  model.json        the model, for the icons of the contents\n"
    "  image-maps.json   the regions of the picture\n"
    "  pictures, texts, files   what the calls name\n"
    "\n"
    "  --document FILE   the document to make (default: manual.htm)\n"
    "  --relative        name pictures and files relative to DIRECTORY\n"
    "  --data DIR        the descriptions\n"
    "  --operations-md FILE   only write the operations as a Markdown page\n";

/// Directory of pictures below the document; the locate buttons look for theirs under this name.
constexpr const char* pictureDirectory = "pixs";

struct Options {
    std::string directory;
    std::string document = "manual.htm";
    std::string data = MANUAL_DATA_DIR;
    std::string operationsMarkdown;
    bool relative = false;
    bool help = false;
};

Options parse(const std::vector<std::string>& arguments) {
    Options options;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string& argument = arguments[i];
        const auto value = [&]() -> const std::string& {
            if (i + 1 == arguments.size()) {
                throw std::invalid_argument(argument + " needs a value");
            }
            return arguments[++i];
        };
        if (argument == "--document") {
            options.document = value();
        } else if (argument == "--data") {
            options.data = value();
        } else if (argument == "--operations-md") {
            options.operationsMarkdown = value();
        } else if (argument == "--relative") {
            options.relative = true;
        } else if (argument == "--help") {
            options.help = true;
        } else if (argument.starts_with("-") || !options.directory.empty()) {
            throw std::invalid_argument("what is " + argument + "?");
        } else {
            options.directory = argument;
        }
    }
    if (options.directory.empty() && options.operationsMarkdown.empty() && !options.help) {
        throw std::invalid_argument("a directory is needed");
    }
    return options;
}

void writeFile(const fs::path& file, const std::string& bytes) {
    std::ofstream output(file, std::ios::binary);
    output << bytes;
    output.close();
    if (!output) {
        throw std::runtime_error("cannot write " + file.string());
    }
}

void copyFolder(const fs::path& from, const fs::path& to) {
    fs::create_directories(to);
    fs::copy(from, to, fs::copy_options::recursive | fs::copy_options::overwrite_existing);
}

void generate(const Options& options) {
    const fs::path data = options.data;
    const ManualData descriptions = readManualData(data);
    if (!options.operationsMarkdown.empty()) {
        writeFile(options.operationsMarkdown, operationsMarkdown(descriptions));
        return;
    }
    const fs::path directory = fs::absolute(options.directory);
    for (const char* const folder : {"pictures", "texts", "files"}) {
        copyFolder(data / folder, directory / folder);
    }

    const std::string sources = options.relative ? "" : directory.generic_string() + '/';
    const Manual manual(descriptions, {options.document, sources});
    writeFile(directory / "manual.jsonl", manual.calls().text());
    writeFile(
        directory / "bridges.jsonl",
        bridgesBetween(manual.pageDirectories(), DocumentName(options.document), pictureDirectory)
            .text());
    writeFile(directory / "model.json", manual.model().json());
    writeFile(directory / "image-maps.json", manual.imageMapsJson());
}

}  // namespace

int main(int argc, char** argv) {
    try {
        const Options options = parse({argv + 1, argv + argc});
        if (options.help) {
            std::cout << usage;
            return 0;
        }
        generate(options);
        return 0;
    } catch (const std::invalid_argument& error) {
        std::cerr << "manual_generator: " << error.what() << '\n' << usage;
        return 2;
    } catch (const std::exception& error) {
        std::cerr << "manual_generator: " << error.what() << '\n';
        return 1;
    }
}
