#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

#include "navigator/data/data_files.h"
#include "navigator/text/text_decoder.h"

namespace quillmark {

/// The file "set", which describes the set as a whole. Members are written in the order of the
/// calls.
class SetFile {
public:
    explicit SetFile(const TextDecoder& decoder) : decoder_(decoder) {}

    SetFile& text(std::string_view name, std::u16string_view value);
    /// A text in the document's encoding.
    SetFile& bytes(std::string_view name, std::string_view value);
    SetFile& number(std::string_view name, std::size_t value);
    SetFile& names(std::string_view name, std::span<const std::string> values);
    void write(const DataFiles& files) const;

private:
    SetFile& member(std::string_view name);
    void appendBytes(std::string_view value);

    const TextDecoder& decoder_;
    std::string json_ = "{\"format\":1";
};

}  // namespace quillmark
