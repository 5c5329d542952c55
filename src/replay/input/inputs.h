#pragma once

#include <istream>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "replay/input/call_source.h"
#include "replay/input/input_buffer.h"

namespace quillmark::replay {

/// The inputs of a run, opened before anything is played so that a name that is wrong costs
/// nothing.
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

/// Reads the calls of an input; null when it holds nothing.
[[nodiscard]] std::unique_ptr<CallSource> makeSource(const Inputs::Input& input);

}  // namespace quillmark::replay
