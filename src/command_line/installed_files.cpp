#include "command_line/installed_files.h"

#include <system_error>

#include "command_line/utf8_path.h"

namespace quillmark {

std::optional<std::string> installedSupportFiles(const std::string& executable) {
    const std::filesystem::path directory =
        (pathFrom(executable).parent_path() / "../share/dochtml").lexically_normal();
    std::error_code ignored;
    return std::filesystem::is_directory(directory, ignored) ? std::optional(utf8Path(directory))
                                                             : std::nullopt;
}

std::optional<std::string> installedLibrary(const std::string& executable,
                                            const std::string& name) {
    const std::filesystem::path here = pathFrom(executable).parent_path();
    for (const char* directory : {".", "../lib/dochtml", DOCHTML_PLUGIN_DIR}) {
        const std::filesystem::path file = (here / directory / name).lexically_normal();
        std::error_code ignored;
        if (std::filesystem::is_regular_file(file, ignored)) {
            return utf8Path(file);
        }
    }
    return std::nullopt;
}

}  // namespace quillmark
