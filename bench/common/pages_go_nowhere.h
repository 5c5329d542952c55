#pragma once

#include <memory>

#include "common/tags_are_no_files.h"

namespace quillmark::bench {

/// A file system that accepts every byte and keeps none, and knows without looking that no file has
/// the name of a tag. What is left is the cost of a document without the disk.
class PagesGoNowhere final : public FailingFileSystem {
public:
    PagesGoNowhere() : FailingFileSystem(FileSystem::native()) {}

    bool fileExists(const OrxString& name) const override {
        return !TagsAreNoFiles::isTag(name) && FailingFileSystem::fileExists(name);
    }
    std::unique_ptr<OutputFile> openForWriting(const OrxString& /*name*/) override {
        return std::make_unique<Sink>();
    }
    std::unique_ptr<OutputFile> openForReplacing(const OrxString& /*name*/) override {
        return std::make_unique<Sink>();
    }

private:
    class Sink final : public OutputFile {
    public:
        bool write(std::span<const std::string_view> /*pieces*/) override { return true; }
        bool close() override { return true; }
    };

    const InstalledFileSystem inForce_{*this};
};

}  // namespace quillmark::bench
