#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "driver/boundary/operation_table.h"
#include "driver/doc_html.h"
#include "replay/input/host_files/image_map_file.h"
#include "replay/input/host_files/model_file.h"
#include "support/installed_file_system.h"
#include "support/memory_file_system.h"
#include "support/memory_settings_store.h"

namespace quillmark::fuzzing {

/// Plays lines as a host would: settings, files, services and calls of a document, with the files
/// in memory. A line that means nothing is passed over. Fields have tabs between them:
///
///     set     Html.Navig  3
///     file    C:\\in\\a.txt   one\ntwo
///     dir     C:\\in
///     model   {"elements":{"1":{"class":"Class"}}}
///     maps    {"a.gif":["name","target","1,2"]}
///     new
///     insertText  Hello
///     insertMark  5   1
class Session {
public:
    Session();
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;
    ~Session();

    void play(std::string_view lines);
    /// Ends the document as a host's release does.
    void finish();
    [[nodiscard]] const MemoryFileSystem& files() const noexcept { return files_; }

private:
    void playLine(const std::vector<std::string>& fields);
    bool playOther(const std::vector<std::string>& fields);
    void call(const Operation& operation, const std::vector<std::string>& fields);
    void setSetting(std::string_view address, const std::string& value);
    void setModel(const std::string& json);
    void setMaps(const std::string& json);

    MemoryFileSystem files_;
    InstalledFileSystem installed_{files_};
    InstalledSettingsStore settings_;
    std::optional<replay::ModelFile> model_;
    std::optional<replay::ImageMapFile> maps_;
    std::unique_ptr<DocHtml> document_;
};

}  // namespace quillmark::fuzzing
