#pragma once

#include "contents/entries/contents_entry_list.h"
#include "foundation/orx_string.h"
#include "page/file_copier.h"
#include "platform/trace.h"

namespace quillmark {

/// What the contents, frame and start pages need to know about the document.
///
/// `DocHtml::close` fills it and passes it to `writeContentsPages`. The objects that it refers to
/// must outlive that call. Paths are full paths, with "\\" on every system.
struct ContentsContext {
    /// Path of the document file without its extension. The names of the pages are derived from it.
    OrxString baseName;
    /// Extension of the pages, with its dot.
    OrxString extension;
    OrxString title;
    /// Attributes for the BODY tags.
    OrxString bodyTags;
    /// Link to the style sheet, relative to the output directory; empty for none. Only the fixed
    /// frame set and the fixed applet contents use it.
    OrxString styleSheetLink;

    bool showIcons = true;
    /// The user's own icon archive, empty for none.
    OrxString iconFile;
    /// Also write the frame sets for old browsers.
    bool supportOld = false;
    /// Write the start page; false when the document has one of its own kind.
    bool ownStartPage = true;
    /// Write the functions that the locate buttons call.
    bool locateInBrowser = true;

    /// Start the applet from its launch file; otherwise from its archive (Java before 7).
    bool useJnlp = true;
    /// Name of the applet archive in the installation directory.
    OrxString appletJar;
    /// Name of the copy of the archive, and its name in the page; empty to keep its own name.
    OrxString appletArchive;
    /// Name of the launch file.
    OrxString appletJnlp;

    OrxString installDir;
    OrxString outputDir;
    /// The image directory.
    OrxString pixDir;
    /// Path of the first detail page, which the start page shows.
    OrxString firstDetailPage;

    const FileCopier& copier;
    const Trace& trace;
    const ContentsEntryList& entries;
};

}  // namespace quillmark
