#pragma once

#include <cstdint>

#include "foundation/orx_string.h"
#include "platform/trace.h"
#include "settings/register_cache.h"
#include "settings/settings_table.h"

namespace quillmark {

/// The settings of one document, as `create` reads them. Before the first `create` they have the
/// values below, which are not always the defaults of the stored settings.
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
    bool scriptNavigator = false;
    int testLevel = 0;
    bool expandRelativeNames = true;

    [[nodiscard]] bool hasContentsPages() const noexcept {
        return (navigation & navigateByContents) != 0;
    }
    [[nodiscard]] bool hasNavigator() const noexcept {
        return scriptNavigator && hasContentsPages();
    }
    [[nodiscard]] bool hasArrows() const noexcept { return (navigation & navigateByArrows) != 0; }

    /// Reads the settings for files and links. Group "Html" is read through the cache, so
    /// overrides apply. Group "Settings" is read directly from the store, where they do not.
    void readPlaces(const RegisterCache& settings, const OrxString& outputDir);
    /// Reads the settings for texts.
    void readTexts(const RegisterCache& settings);
    /// Reads the modelling tool's ini file. Returns false when the applet must run on a Java before
    /// version 7. A file that cannot be read is an error in the trace; a missing one counts as
    /// empty.
    [[nodiscard]] bool readIniFile(const Trace& trace);
};

/// The directory of the user's own files, read from the store at each call.
[[nodiscard]] OrxString userFilesDir();

}  // namespace quillmark
