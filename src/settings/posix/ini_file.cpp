#include "settings/ini_file.h"

#include <algorithm>
#include <optional>
#include <string>

#include "platform/files/path_text.h"
#include "platform/files/read_whole.h"
#include "platform/files/sys_file.h"
#include "platform/system_facts.h"
#include "settings/ini_text.h"

namespace quillmark {

OrxString IniFile::read(const OrxString& fileName, const OrxString& section, const OrxString& key,
                        const OrxString& fallback, std::size_t bufferSize) {
    const bool bare = path_text::fileStart(fileName) == 0;
    const std::optional<std::string> text =
        readWhole(bare ? SysFile::appendToDir(system_facts::userConfigurationDirectory(), fileName)
                       : fileName);
    std::optional<std::string> value;
    if (text) {
        value = IniText(*text).value(section, key);
    }
    const std::string_view result = value ? std::string_view(*value) : fallback.view();
    return result.substr(0, std::max<std::size_t>(bufferSize, 1) - 1);
}

}  // namespace quillmark
