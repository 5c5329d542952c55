#include "replay/input/inputs.h"

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <fstream>

#include "command_line/utf8_path.h"
#include "replay/input/bad_input.h"
#include "replay/input/call_stream_reader.h"
#include "replay/input/host_files/host_file.h"
#include "replay/input/recording_reader.h"

namespace quillmark::replay {

namespace {

constexpr std::streamsize bufferSize = std::streamsize{256} * 1024;

/// A file stream with a large buffer.
class LargeFile final : public std::ifstream {
public:
    explicit LargeFile(const std::filesystem::path& name)
        : buffer_(static_cast<std::size_t>(bufferSize)) {
        rdbuf()->pubsetbuf(buffer_.data(), bufferSize);
        open(name, std::ios::binary);
    }
    ~LargeFile() override { close(); }
    LargeFile(const LargeFile&) = delete;
    LargeFile& operator=(const LargeFile&) = delete;

private:
    std::vector<char> buffer_;
};

std::unique_ptr<std::istream> openFile(const std::string& name) {
    const std::filesystem::path path = pathFrom(name);
    std::error_code ignored;
    if (std::filesystem::is_directory(path, ignored)) {
        errno = EISDIR;
        refuseFile(name);
    }
    errno = 0;
    auto file = std::make_unique<LargeFile>(path);
    if (!file->is_open()) {
        refuseFile(name);
    }
    return file;
}

}  // namespace

Inputs::Inputs(std::span<const std::string> names, std::istream& standardInput) {
    for (const std::string& name : names) {
        Input& input = inputs_.emplace_back();
        input.name = name;
        if (name != "-") {
            input.file = openFile(name);
        }
        input.buffer = std::make_unique<InputBuffer>(name == "-" ? standardInput : *input.file);
    }
    for (Input& input : inputs_) {
        input.format = detectFormat(*input.buffer);
        if (input.format == InputFormat::nothing && input.buffer->failed()) {
            throw BadInput("cannot read " + (input.file ? input.name : "the standard input"));
        }
    }
}

bool Inputs::hasRecording() const noexcept {
    return std::ranges::any_of(
        inputs_, [](const Input& input) { return input.format == InputFormat::recording; });
}

std::unique_ptr<CallSource> makeSource(const Inputs::Input& input) {
    if (input.format == InputFormat::callStream) {
        return std::make_unique<CallStreamReader>(*input.buffer);
    }
    if (input.format == InputFormat::recording) {
        return std::make_unique<RecordingReader>(*input.buffer);
    }
    return nullptr;
}

}  // namespace quillmark::replay
