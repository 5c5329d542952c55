#pragma once

#include <atomic>
#include <cstddef>

#include "platform/files/file_system.h"

namespace quillmark::testing {

/// A disk that takes everything, keeps nothing, and counts. Any thread may use it.
class DiscardingFileSystem final : public FileSystem {
public:
    [[nodiscard]] std::size_t files() const noexcept { return files_; }
    [[nodiscard]] std::size_t bytes() const noexcept { return bytes_; }

    bool fileExists(const OrxString& /*name*/) const override { return false; }
    bool directoryExists(const OrxString& /*name*/) const override { return true; }
    std::optional<FileStamp> stamp(const OrxString& /*name*/) const override {
        return std::nullopt;
    }
    bool copyFile(const OrxString& /*source*/, const OrxString& /*target*/) override {
        return false;
    }
    bool deleteFile(const OrxString& /*name*/) override { return false; }
    bool makeDirectories(const OrxString& /*name*/) override { return true; }
    bool setCurrentDirectory(const OrxString& /*name*/) override { return true; }
    OrxString currentDirectory() const override { return "C:\\"; }
    std::unique_ptr<InputFile> openForReading(const OrxString& /*name*/) override {
        return nullptr;
    }
    std::unique_ptr<OutputFile> openForWriting(const OrxString& /*name*/) override {
        ++files_;
        return std::make_unique<Sink>(bytes_);
    }
    std::unique_ptr<OutputFile> openForAppending(const OrxString& name) override {
        return openForWriting(name);
    }
    bool replaceFile(const OrxString& /*source*/, const OrxString& /*target*/) override {
        return false;
    }

private:
    class Sink final : public OutputFile {
    public:
        explicit Sink(std::atomic<std::size_t>& bytes) noexcept : bytes_(bytes) {}
        bool write(std::span<const std::string_view> pieces) override {
            for (const std::string_view piece : pieces) {
                bytes_ += piece.size();
            }
            return true;
        }
        bool close() override { return true; }

    private:
        std::atomic<std::size_t>& bytes_;
    };

    std::atomic<std::size_t> files_{0};
    std::atomic<std::size_t> bytes_{0};
};

}  // namespace quillmark::testing
