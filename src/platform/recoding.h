#pragma once

#include <utility>
#include <vector>

#include "foundation/orx_string.h"
#include "platform/text_encoding.h"

namespace quillmark {

/// Converts the texts of several owners from one encoding to another: all of them or, without
/// memory, none.
///
///     Recoding recoding(before, next);
///     recoding.add(title);
///     recoding.add(fontName);
///     recoding.commit();
class Recoding {
public:
    Recoding(const TextEncoding& from, const TextEncoding& to) noexcept : from_(from), to_(to) {}

    /// The text stays where it is, and as it is until `commit`.
    void add(OrxString& text) { texts_.emplace_back(&text, to_.recoded(text, from_)); }
    void commit() noexcept;

private:
    const TextEncoding& from_;
    const TextEncoding& to_;
    std::vector<std::pair<OrxString*, OrxString>> texts_;
};

}  // namespace quillmark
