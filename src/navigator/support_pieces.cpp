#include "navigator/support_pieces.h"

#include <algorithm>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "host/document_observer.h"
#include "platform/files/failure_lines.h"
#include "platform/files/file_failure.h"
#include "platform/files/read_whole.h"
#include "platform/files/sys_directory.h"
#include "platform/files/sys_file.h"

namespace quillmark {

namespace {

constexpr const char* orderFile = "order.txt";

/// Reads pieces. The first one that is missing ends it.
class PieceReader {
public:
    PieceReader(const OrxString& source, const Trace& trace) : source_(source), trace_(trace) {}

    [[nodiscard]] std::optional<std::string> read(std::string_view name) const {
        const OrxString file = SysFile::appendToDir(source_, name);
        FileFailure::forget();
        std::optional<std::string> bytes = readWhole(file);
        if (!bytes.has_value() && !FileFailure::isMissingFile()) {
            failure_lines::writeReason(trace_);
        }
        if (!bytes.has_value() && trace_.isTrace(Trace::errors)) {
            trace_.write(Trace::errors, "ERR Could not read file " + file + "\n");
        }
        return bytes;
    }

private:
    const OrxString& source_;
    const Trace& trace_;
};

struct Scripts {
    std::string script;
    std::string styleSheet;

    void add(std::string_view name, std::string_view piece) {
        if (name.ends_with(".js")) {
            script.append(piece).append(1, '\n');
        } else if (name.ends_with(".css")) {
            styleSheet.append(piece).append(1, '\n');
        }
    }
};

std::optional<Scripts> putTogether(const PieceReader& reader) {
    const std::optional<std::string> order = reader.read(orderFile);
    if (!order.has_value()) {
        return std::nullopt;
    }
    Scripts scripts;
    for (std::string_view rest = *order; !rest.empty();) {
        const std::string_view name = rest.substr(0, rest.find('\n'));
        rest.remove_prefix(std::min(rest.size(), name.size() + 1));
        if (name.empty()) {
            continue;
        }
        const std::optional<std::string> piece = reader.read(name);
        if (!piece.has_value()) {
            return std::nullopt;
        }
        scripts.add(name, *piece);
    }
    return scripts;
}

bool writeAndTell(const DataFiles& files, std::string_view name, std::string_view bytes) {
    const bool written = files.writePlain(name, std::span(&bytes, 1));
    if (written) {
        DocumentObserver::current().fileCopied(SysFile::appendToDir(files.directory(), name));
    }
    return written;
}

}  // namespace

bool writeNavigatorScripts(const OrxString& source, const DataFiles& files, const Trace& trace) {
    const std::optional<Scripts> scripts = putTogether(PieceReader(source, trace));
    if (!scripts.has_value()) {
        return false;
    }
    SysDirectory::checkDirectoryAndCreate(files.directory());
    return writeAndTell(files, "navigator.js", scripts->script) &&
           writeAndTell(files, "navigator.css", scripts->styleSheet);
}

}  // namespace quillmark
