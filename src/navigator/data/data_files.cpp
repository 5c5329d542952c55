#include "navigator/data/data_files.h"

#include <array>
#include <string>

#include "foundation/orx_exception.h"
#include "platform/sys_file.h"

namespace quillmark {

void DataFiles::write(std::string_view name, std::string_view json) const {
    const std::array<std::string_view, 5> pieces = {"repNav(\"", name, "\",'", json, "');\n"};
    writePlain(std::string(name) + ".js", pieces);
}

void DataFiles::write(std::string_view kind, std::size_t number, std::string_view json) const {
    write(std::string(kind) + std::to_string(number), json);
}

bool DataFiles::writePlain(std::string_view name, std::span<const std::string_view> pieces) const {
    const OrxString fileName = SysFile::appendToDir(directory_, name);
    switch (SysFile::writeWhole(fileName, pieces)) {
        case WriteResult::done:
            return true;
        case WriteResult::openFailed:
            OrxException::logCatch("Error opening file: " + fileName);
            return false;
        case WriteResult::writeFailed:
            break;
    }
    OrxException::logCatch("Error writing to file: " + fileName);
    return false;
}

}  // namespace quillmark
