#pragma once

#include <cstddef>
#include <functional>

#include "host/document_observer.h"
#include "platform/text_encoding.h"
#include "replay/play/opening_page.h"

namespace quillmark::replay {

/// Counts what the documents of a run consist of.
class DocumentCounts final : public DocumentObserver {
public:
    void pageWritten(const OrxString& fileName) override {
        ++pages;
        opening.pageWritten(TextEncoding::current().toUtf8(fileName));
    }
    void fileCopied(const OrxString& target) override {
        ++files;
        opening.fileCopied(TextEncoding::current().toUtf8(target));
    }
    void contentsEntryAdded() override { ++contentsEntries; }
    void unresolvedReferences(const OrxString& /*fileName*/, std::size_t count) override {
        unresolved += count;
        if (unresolvedFound) {
            unresolvedFound();
        }
    }

    /// Called before the driver reports which references they are; may be empty.
    std::function<void()> unresolvedFound;
    std::size_t pages = 0;
    std::size_t files = 0;
    std::size_t contentsEntries = 0;
    std::size_t unresolved = 0;
    OpeningPage opening;
};

}  // namespace quillmark::replay
