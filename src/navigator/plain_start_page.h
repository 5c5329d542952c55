#pragma once

#include "contents/entries/contents_entry_list.h"
#include "foundation/orx_string.h"
#include "navigator/entries/entry_numbers.h"
#include "navigator/text/text_decoder.h"

namespace quillmark {

/// What the start page needs to know about its document.
struct PlainStartPage {
    /// Its path.
    OrxString fileName;
    OrxString title;
    /// Attributes for the BODY tag.
    OrxString bodyTags;
    /// Empty for none.
    OrxString styleSheetLink;
    OrxString headLines;

    /// Writes the start page: the title and the upper levels of the contents as links. It needs no
    /// scripts. There are as many levels as have no more than 200 entries together, and at least
    /// one. A failure goes to the exception log.
    void write(const ContentsEntryList& entries, const EntryNumbers& numbers,
               const TextDecoder& decoder) const;
};

}  // namespace quillmark
