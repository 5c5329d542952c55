#pragma once

#include <cstddef>

#include "foundation/orx_string.h"

namespace quillmark {

/// Hears what became of a document, for tools that count and tell. Every event does nothing unless
/// overridden. Calls come on the thread that drives the document.
class DocumentObserver {
public:
    virtual ~DocumentObserver() = default;
    /// A page file was written whole.
    virtual void pageWritten(const OrxString& /*fileName*/) {}
    /// A file was copied next to the document.
    virtual void fileCopied(const OrxString& /*target*/) {}
    /// An entry joined the contents.
    virtual void contentsEntryAdded() {}
    /// A page was finished with that many references still open.
    virtual void unresolvedReferences(const OrxString& /*fileName*/, std::size_t /*count*/) {}

    /// The one in force; never null. The default hears nothing.
    [[nodiscard]] static DocumentObserver& current() noexcept;
    /// Puts one in force, process-wide (it stays the caller's); null brings the default back.
    /// Returns the one installed before, null for the default.
    static DocumentObserver* install(DocumentObserver* observer) noexcept;
};

}  // namespace quillmark
