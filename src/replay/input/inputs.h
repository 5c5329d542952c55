#pragma once

#include <istream>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "replay/input/call_source.h"
#include "replay/input/input_buffer.h"

namespace quillmark::replay {

/// The inputs of a run. All are opened before anything is played, so a wrong name is reported
/// first.
class Inputs {
public:
    struct Input {
        /// As given on the command line.
        std::string name;
        std::unique_ptr<std::istream> file;
        std::unique_ptr<InputBuffer> buffer;
        InputFormat format = InputFormat::nothing;
    };

    /// `-` is `standardInput`, which stays the caller's. Throws `BadInput`.
    Inputs(std::span<const std::string> names, std::istream& standardInput);

    [[nodiscard]] std::span<const Input> all() const noexcept { return inputs_; }
    [[nodiscard]] bool hasRecording() const noexcept;

private:
    std::vector<Input> inputs_;
};

/// A reader for the calls of an input; null if the input is empty.
[[nodiscard]] std::unique_ptr<CallSource> makeSource(const Inputs::Input& input);

}  // namespace quillmark::replay
