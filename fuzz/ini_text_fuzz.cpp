// An ini file with any bytes can be read and changed: what is set is found again, everything else
// stays as it was.

#include <algorithm>
#include <map>
#include <string>
#include <string_view>

#include "foundation/ascii.h"
#include "settings/ini_file.h"
#include "settings/ini_text.h"
#include "settings/settings_store.h"
#include "settings/settings_table.h"
#include "support/byte_source.h"
#include "support/installed_file_system.h"
#include "support/memory_file_system.h"
#include "support/require.h"

namespace quillmark::fuzzing {
namespace {

using Values = std::map<const SettingDescription*, std::optional<std::string>>;

Values valuesOf(const IniText& ini) {
    Values values;
    for (const SettingDescription& setting : allSettings()) {
        values[&setting] = ini.value(setting.group, setting.name);
    }
    return values;
}

void checkText(std::string_view text) {
    const IniText ini(text);
    const std::string once = ini.text();
    require(valuesOf(IniText(once)) == valuesOf(ini),
            "a text that was written has the same values");
    const std::string twice = IniText(once).text();
    require(std::ranges::count(once, '\n') == std::ranges::count(text, '\n') &&
                std::ranges::count(twice, '\n') == std::ranges::count(text, '\n'),
            "no line comes or goes");
    require(ini.firstUnknownLine() == IniText(once).firstUnknownLine(), "lines keep their places");
}

void checkSet(std::string_view text, const SettingDescription& setting, std::string_view value) {
    IniText ini(text);
    Values values = valuesOf(ini);
    if (ini.set(setting.group, setting.name, value)) {
        values[&setting] = std::string(value);
    }
    require(valuesOf(ini) == values, "one value changes");
    require(valuesOf(IniText(ini.text())) == values, "the change is in the text");
}

/// Sections and keys of the input's own.
void checkOwnNames(std::string_view text, std::string_view section, std::string_view key,
                   std::string_view value) {
    IniText ini(text);
    if (ini.set(section, key, value)) {
        require(ini.value(section, key) == value, "what was set is found");
        require(IniText(ini.text()).value(section, key) == value, "also when it is read again");
    } else {
        require(ini.text() == IniText(text).text(), "what cannot be set changes nothing");
    }
}

/// The same with files, as programs use them.
void checkFiles(std::string_view text, const SettingDescription& setting, std::string_view value) {
    MemoryFileSystem files;
    const InstalledFileSystem installed(files);
    const OrxString name = "C:\\user\\settings.ini";
    files.put(name, std::string(text));
    const auto store = makeIniSettingsStore(name);
    static_cast<void>(store->problem());
    if (store->write(setting.group, setting.name, value)) {
        require(store->read(setting.group, setting.name) == OrxString(value), "stored");
        require(makeIniSettingsStore(name)->read(setting.group, setting.name) == OrxString(value),
                "stored for others");
        require(files.fileNames() == std::vector<std::string>{name.str()}, "one file is left");
    } else {
        require(files.content(name) == text, "a refused value leaves the file as it was");
    }
    constexpr std::size_t room = 8;
    require(IniFile::read(name, setting.group, setting.name, "none", room).length() < room,
            "a value is cut to its room");
}

}  // namespace
}  // namespace quillmark::fuzzing

/// Byte 0 chooses what is checked, byte 1 the setting; then a line with the value, then the file.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace quillmark;
    using namespace quillmark::fuzzing;
    ByteSource input(data, size);
    const std::uint8_t choice = input.byte();
    const SettingDescription& setting = allSettings()[input.byte() % allSettings().size()];
    const std::string_view value = input.line();
    if (choice % 4 == 0) {
        checkFiles(input.rest(), setting, value);
    } else if (choice % 4 == 1) {
        const std::string_view section = input.piece();
        const std::string_view key = input.piece();
        checkOwnNames(input.rest(), section, key, value);
    } else {
        const std::string_view text = input.rest();
        checkText(text);
        checkSet(text, setting, value);
    }
    return 0;
}
