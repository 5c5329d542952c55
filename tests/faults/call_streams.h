#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "driver/boundary/operation_table.h"
#include "replay/play/late_bound_document.h"

namespace quillmark::testing {

/// A named call stream of streams.txt: one call per line, as the replay tool reads it.
struct CallStream {
    std::string name;
    std::string text;
};

/// All streams except the two that `settledStream` and `secondStream` return. "$IN" and "$OUT" in
/// them stand for the two directories.
[[nodiscard]] std::vector<CallStream> callStreams(const std::string& in, const std::string& out);
/// Brings an object into a known state: what carries over from one document to the next is the
/// same afterwards, except for the page number.
[[nodiscard]] std::string settlingStream(const std::string& in, const std::string& out);
/// A document that uses most parts of the driver.
[[nodiscard]] std::string secondStream(const std::string& in, const std::string& out);

/// A call with its texts.
class OwnedCall {
public:
    explicit OwnedCall(const Operation& operation) : operation_(&operation) {}
    void add(const Argument& argument);
    /// Makes the call. An exception of the document passes.
    void play(replay::LateBoundDocument& document) const;

private:
    const Operation* operation_;
    std::vector<std::variant<std::u16string, std::int64_t, bool>> arguments_;
};

[[nodiscard]] std::vector<OwnedCall> parseCalls(const std::string& text);

}  // namespace quillmark::testing
