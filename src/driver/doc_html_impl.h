#pragma once

#include <memory>
#include <string>

#include "driver/boundary/call_trace.h"
#include "driver/boundary/i_document.h"
#include "driver/files/file_inserter.h"
#include "driver/files/image_writer.h"
#include "driver/files/locate_button.h"
#include "driver/links/bookmark_writer.h"
#include "driver/links/link_writer.h"
#include "driver/page_turner.h"
#include "driver/pages/document_context.h"
#include "driver/pages/held_pages.h"
#include "driver/text/contents_collector.h"
#include "driver/text/font_writer.h"
#include "driver/text/paragraph_style.h"
#include "driver/text/table_writer.h"
#include "driver/text/text_writer.h"
#include "navigator/navigator.h"
#include "platform/out_of_memory.h"
#include "settings/register_cache.h"

namespace quillmark {

/// The parts of a document, each with its own state. They are connected here and nowhere else: a
/// part may refer to the parts declared above it.
struct DocHtmlImpl {
    DocumentContext context;
    RegisterCache settings;
    CallTrace calls{context.trace};
    HeldPages heldPages;
    BookmarkWriter bookmarks{context.out, heldPages, context.trace};
    ContentsCollector contents{context.out, bookmarks};
    FontWriter font{context.out};
    ParagraphStyle style{context.out, font, contents};
    TableWriter tables{context.out, font, style};
    TextWriter text{context.out, contents, style, tables};
    LinkWriter links{context, bookmarks};
    ImageWriter images{context, bookmarks, links};
    FileInserter files{context, links, images, text};
    LocateButton locate{context, text};
    PageTurner pages{context, heldPages, bookmarks, contents, font, style};

    /// Null for a document without one.
    std::shared_ptr<Navigator> navigator;

    /// `create` found too little memory. Then nothing is written up to the next one: the calls
    /// would go to files of the document before.
    bool isLost = false;
    /// `pushDirectory` has just ended a page, so an immediate page break does not end another one.
    bool breakJustMade = false;
    // The host's text in the document's encoding, and the target of the current link. Members only
    // to reuse their memory.
    std::string bytes;
    OrxString linkTarget;

    /// A host's text in the document's encoding.
    [[nodiscard]] OrxString bytesOf(std::u16string_view given) const {
        return context.encoding->toBytes(given);
    }

    /// Runs an operation with the document's encoding in force. What it has no memory for is lost
    /// and reported; the document goes on.
    template <typename Body>
    DocResult operate(const char* operation, const Body& body) {
        if (!isLost) {
            const TextEncoding::Scope scope(*context.encoding);
            survive(context.trace, operation, body);
        }
        return resultOk;
    }
};

}  // namespace quillmark
