#pragma once

#include <cstddef>

#include "foundation/orx_string.h"

namespace quillmark {

/// Is notified of what the driver writes, for tools that show progress or counts. The events do
/// nothing unless overridden. They come on the thread that drives the document.
class DocumentObserver {
public:
    virtual ~DocumentObserver() = default;
    /// A page file was written completely.
    virtual void pageWritten(const OrxString& /*fileName*/) {}
    /// A file was copied for the document.
    virtual void fileCopied(const OrxString& /*target*/) {}
    /// An entry was added to the contents.
    virtual void contentsEntryAdded() {}
    /// A page was finished, and `count` of its references have no target.
    virtual void unresolvedReferences(const OrxString& /*fileName*/, std::size_t /*count*/) {}

    /// The installed observer, or one that does nothing.
    [[nodiscard]] static DocumentObserver& current() noexcept;
    /// Installs an observer for the whole process and returns the one before. Null stands for none.
    /// The observer is not owned and must stay alive while it is installed.
    static DocumentObserver* install(DocumentObserver* observer) noexcept;
};

}  // namespace quillmark
