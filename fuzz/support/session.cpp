#include "support/session.h"

#include <algorithm>
#include <charconv>
#include <cstdint>

#include "driver/text/element_handle.h"
#include "foundation/orx_exception.h"
#include "host/quillmark_mode.h"
#include "platform/files/sys_directory.h"
#include "platform/files/sys_file.h"
#include "replay/input/bad_input.h"
#include "support/byte_source.h"
#include "support/fields.h"
#include "support/temp_dir.h"

namespace quillmark::fuzzing {
namespace {

std::int64_t numberIn(std::string_view field) {
    std::int64_t number = 0;
    std::from_chars(field.data(), field.data() + field.size(), number);
    return number;
}

/// Arguments of a call, made from fields. A missing field is an empty text, 0 or false.
class FieldArguments {
public:
    FieldArguments(const Operation& operation, const std::vector<std::string>& fields) {
        texts_.reserve(operation.parameters.size());
        for (std::size_t at = 0; at < operation.parameters.size(); ++at) {
            const std::string_view field =
                at + 1 < fields.size() ? std::string_view(fields[at + 1]) : std::string_view();
            arguments_.push_back(argument(operation.parameters[at].kind, field));
        }
    }
    [[nodiscard]] std::span<const Argument> all() const { return arguments_; }

private:
    Argument argument(ParameterKind kind, std::string_view field) {
        switch (kind) {
            case ParameterKind::string:
                return WideText(texts_.emplace_back(wideField(field)));
            case ParameterKind::outString:
                return &texts_.emplace_back();
            case ParameterKind::boolean:
                return numberIn(field) % 2 != 0;
            case ParameterKind::longInteger:
                return std::int64_t{static_cast<std::int32_t>(numberIn(field))};
            case ParameterKind::shortInteger:
                break;
        }
        return std::int64_t{static_cast<std::int16_t>(numberIn(field))};
    }

    std::vector<std::u16string> texts_;
    std::vector<Argument> arguments_;
};

/// Fails where a directory lies, as on a disk.
void writeFile(const OrxString& name, std::string_view content) {
    static_cast<void>(SysDirectory::checkDirectoryAndCreate(SysFile::getDir(name)));
    static_cast<void>(SysFile::writeWhole(name, {&content, 1}));
}

/// The file readers of the replay tool take files of the system.
const TempDir& directory() {
    static const TempDir dir;
    return dir;
}

}  // namespace

Session::Session() : document_(std::make_unique<DocHtml>()) {
    files_.put("C:\\inst\\default.css", "P { }\n");
    files_.put("C:\\in\\a.gif", "gif");
    files_.put("C:\\in\\a.txt", "one\r\n\ntwo");
    settings_.set("Settings", "InstallDir", "C:\\inst");
    // The halves of handles belong to the process.
    static_cast<void>(ElementHandle::joinHighHalf(0));
}

Session::~Session() {
    finish();
    MMSchema::setSchema(nullptr);
    CImageMapInterface::setInterface(nullptr);
    CQuillmarkMode::SetSchemaType(0);
}

void Session::finish() {
    document_.reset();
}

void Session::play(std::string_view lines) {
    ByteSource input(reinterpret_cast<const std::uint8_t*>(lines.data()), lines.size());
    while (!input.atEnd()) {
        playLine(fieldsOf(input.line()));
    }
}

void Session::playLine(const std::vector<std::string>& fields) {
    const Operation* const operation = findOperation(fields.front());
    if (operation == nullptr) {
        static_cast<void>(playOther(fields));
    } else if (fields.front() != "showLast") {  // It would start the browser.
        call(*operation, fields);
    }
}

bool Session::playOther(const std::vector<std::string>& fields) {
    const std::string& what = fields.front();
    const std::string first = fields.size() > 1 ? fields[1] : "";
    const std::string second = fields.size() > 2 ? fields[2] : "";
    if (what == "set") {
        setSetting(first, second);
    } else if (what == "file") {
        writeFile(first, second);
    } else if (what == "dir") {
        files_.makeDirectories(first);
    } else if (what == "model") {
        setModel(first);
    } else if (what == "maps") {
        setMaps(first);
    } else if (what == "new") {
        document_ = std::make_unique<DocHtml>();
    }
    return !what.empty();
}

void Session::call(const Operation& operation, const std::vector<std::string>& fields) {
    const FieldArguments arguments(operation, fields);
    try {
        static_cast<void>(invoke(*document_, operation.dispatchId, arguments.all()));
    } catch (const OrxException&) {
        // The style sheet or the tree data file; the document goes on.
    }
}

void Session::setSetting(std::string_view address, const std::string& value) {
    const std::size_t dot = std::min(address.find('.'), address.size());
    settings_.set(address.substr(0, dot), address.substr(std::min(dot + 1, address.size())), value);
}

void Session::setModel(const std::string& json) {
    directory().put("model.json", json);
    MMSchema::setSchema(nullptr);
    try {
        model_.emplace(directory().nativeFile("model.json"), "model.json");
        CQuillmarkMode::SetSchemaType(model_->schemaType());
        MMSchema::setSchema(&*model_);
    } catch (const replay::BadInput&) {
        model_.reset();
    }
}

void Session::setMaps(const std::string& json) {
    directory().put("maps.json", json);
    CImageMapInterface::setInterface(nullptr);
    try {
        maps_.emplace(directory().nativeFile("maps.json"), "maps.json");
        CImageMapInterface::setInterface(&*maps_);
    } catch (const replay::BadInput&) {
        maps_.reset();
    }
}

}  // namespace quillmark::fuzzing
