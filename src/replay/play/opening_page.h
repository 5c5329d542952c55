#pragma once

#include <optional>
#include <string>

#include "foundation/orx_string.h"

namespace quillmark::replay {

/// Finds the page of a run's first document that a reader opens first. It knows the documents from
/// the names of their files, which are in UTF-8 here, in the order in which they are written.
class OpeningPage {
public:
    void pageWritten(const OrxString& fileName);
    void fileCopied(const OrxString& target);

    struct Answer {
        /// The page's path.
        OrxString page;
        /// It shows nothing in a browser without Java.
        bool needsJava = false;
    };
    /// Nothing when no page was written.
    [[nodiscard]] std::optional<Answer> answer() const;

private:
    struct Contents {
        OrxString base;
        OrxString extension;
        bool hasListing = false;
        bool hasNavigator = false;
    };

    /// The document with contents, if one has been closed.
    std::optional<Contents> contents_;
    /// The base of a document with a navigator.
    std::optional<OrxString> navigator_;
    /// The page with the shortest name: the others have numbers and directories.
    OrxString shortest_;
};

}  // namespace quillmark::replay
