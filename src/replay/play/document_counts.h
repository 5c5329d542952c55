#pragma once

#include <cstddef>

#include "host/document_observer.h"

namespace quillmark::replay {

/// Counts what the documents of a run consist of.
class DocumentCounts final : public DocumentObserver {
public:
    void pageWritten(const OrxString& /*fileName*/) override { ++pages; }
    void fileCopied(const OrxString& /*target*/) override { ++files; }
    void contentsEntryAdded() override { ++contentsEntries; }
    void unresolvedReferences(const OrxString& /*fileName*/, std::size_t count) override {
        unresolved += count;
    }

    std::size_t pages = 0;
    std::size_t files = 0;
    std::size_t contentsEntries = 0;
    std::size_t unresolved = 0;
};

}  // namespace quillmark::replay
