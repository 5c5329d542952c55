#pragma once

#include "contents/entries/contents_entry_list.h"
#include "foundation/orx_string.h"
#include "page/file_copier.h"
#include "platform/trace.h"

namespace quillmark {

/// What the contents, frame and start pages need to know of the document.
///
/// The document fills one when it is closed and hands it to `writeContentsPages`. What is
/// referred to must outlive that call. Paths are full paths in the driver's form.
struct ContentsContext {
    /// Path of the document file without its extension; every name below is made from it.
    OrxString baseName;
    /// Extension of the pages, its dot included.
    OrxString extension;
    OrxString title;
    /// Attributes for the BODY tags.
    OrxString bodyTags;
    /// The style-sheet link as seen from the output directory; empty for none. Only the fixed
    /// frame set and the fixed applet contents carry it.
    OrxString styleSheetLink;

    bool showIcons = true;
    /// The user's own icon archive, empty for none.
    OrxString iconFile;
    /// Also write the frame sets for old browsers.
    bool supportOld = false;
    /// Let locate buttons select the entry of their place.
    bool locateInBrowser = true;

    /// Start the applet from its launch file; otherwise from its archive (Java before 7).
    bool useJnlp = true;
    /// Name of the applet archive in the installation directory.
    OrxString appletJar;
    /// Name that the archive is copied under and that the page gives; empty for its own name.
    OrxString appletArchive;
    /// Name of the launch file.
    OrxString appletJnlp;

    OrxString installDir;
    OrxString outputDir;
    /// The image directory.
    OrxString pixDir;
    /// Name of the first detail page, which the start page shows.
    OrxString firstDetailPage;

    const FileCopier& copier;
    const Trace& trace;
    const ContentsEntryList& entries;
};

}  // namespace quillmark
