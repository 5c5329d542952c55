#pragma once

#include <cstdint>

#include "foundation/orx_string.h"
#include "settings/register_cache.h"
#include "settings/settings_table.h"

namespace quillmark {

/// The settings of one document, as `create` read them. Before that they are as a fresh object
/// has them, which is not always the stored default.
struct DocumentSettings {
    OrxString pixDir;          // image directory, full path
    OrxString externalDocDir;  // directory for copied documents, full path
    bool useRelative = true;
    bool showIcons = true;
    OrxString iconFile;
    bool supportOld = false;
    OrxString bodyTags;
    bool suppressImageMaps = false;
    int navigation = 0;
    std::uint32_t tocLevel = 0;
    OrxString dontCopy;
    OrxString installDir;
    OrxString styleSheet;
    bool passThrough = false;
    bool locateInBrowser = true;
    int testLevel = 0;
    bool expandRelativeNames = true;

    [[nodiscard]] bool hasContentsPages() const noexcept {
        return (navigation & navigateByContents) != 0;
    }
    [[nodiscard]] bool hasArrows() const noexcept { return (navigation & navigateByArrows) != 0; }

    /// Reads what belongs to the files of the document. Group "Html" is read through the cache,
    /// so overrides apply; group "Settings" straight from the store, which they do not reach.
    void readPlaces(const RegisterCache& settings, const OrxString& outputDir);
    /// Reads what belongs to the way texts are written.
    void readTexts(const RegisterCache& settings);
    /// Reads the modelling tool's ini file. False when the applet is for a Java before 7.
    [[nodiscard]] bool readIniFile();
};

/// Directory of the user's own files, as it is stored now.
[[nodiscard]] OrxString userFilesDir();

}  // namespace quillmark
