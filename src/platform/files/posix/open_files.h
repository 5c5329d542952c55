#pragma once

#include <utility>

#include "platform/files/file_system.h"
#include "platform/files/posix/descriptor.h"
#include "platform/files/posix/whole_file.h"

namespace quillmark {

/// Reads from a descriptor.
class OpenInputFile final : public InputFile {
public:
    explicit OpenInputFile(Descriptor file) noexcept : file_(std::move(file)) {}

    std::size_t read(std::span<char> buffer) override;
    bool failed() const override { return failed_; }

private:
    Descriptor file_;
    bool failed_ = false;
};

/// Writes to a descriptor.
class OpenOutputFile final : public OutputFile {
public:
    explicit OpenOutputFile(Descriptor file) noexcept : file_(std::move(file)) {}

    bool write(std::span<const std::string_view> pieces) override;
    bool close() override;

private:
    Descriptor file_;
};

/// Output that takes its name whole or not at all.
class WholeOutputFile final : public OutputFile {
public:
    explicit WholeOutputFile(WholeFile file) noexcept : file_(std::move(file)) {}

    bool write(std::span<const std::string_view> pieces) override;
    bool close() override;

private:
    WholeFile file_;
    bool failed_ = false;
};

}  // namespace quillmark
