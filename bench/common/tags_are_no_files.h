#pragma once

#include "common/texts.h"
#include "platform/files/file_system.h"
#include "platform/files/path_text.h"
#include "support/failing_file_system.h"
#include "support/installed_file_system.h"

namespace quillmark::bench {

/// A file system that knows without looking that no file bears the name of a tag. Every new link
/// asks the disk whether its target is a file; with this in force one sees what is left of the
/// cost of a link when the system's part in it is taken away.
class TagsAreNoFiles final : public FailingFileSystem {
public:
    TagsAreNoFiles() : FailingFileSystem(FileSystem::native()) {}

    [[nodiscard]] static bool isTag(const OrxString& name) noexcept {
        return name.view().substr(path_text::fileStart(name)).starts_with(tagOpening);
    }

    bool fileExists(const OrxString& name) const override {
        return !isTag(name) && FailingFileSystem::fileExists(name);
    }

private:
    const InstalledFileSystem inForce_{*this};
};

}  // namespace quillmark::bench
