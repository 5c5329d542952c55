#include "navigator/data/data_files.h"

#include <array>
#include <string>

#include "foundation/orx_exception.h"
#include "platform/files/failure_lines.h"
#include "platform/files/sys_file.h"

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
    const WriteResult result = SysFile::writeWhole(fileName, pieces);
    if (result == WriteResult::done) {
        return true;
    }
    failure_lines::writeReason(trace_);
    const bool opened = result == WriteResult::writeFailed;
    OrxException::logCatch((opened ? "Error writing to file: " : "Error opening file: ") +
                           fileName);
    return false;
}

}  // namespace quillmark
