#include "navigator/data/set_file.h"

#include "navigator/data/json_text.h"

namespace quillmark {

SetFile& SetFile::member(std::string_view name) {
    json_.append(",\"").append(name).append("\":");
    return *this;
}

void SetFile::appendBytes(std::string_view value) {
    std::u16string wide;
    decoder_.append(wide, value);
    json_text::appendString(json_, wide);
}

SetFile& SetFile::text(std::string_view name, std::u16string_view value) {
    member(name);
    json_text::appendString(json_, value);
    return *this;
}

SetFile& SetFile::bytes(std::string_view name, std::string_view value) {
    member(name);
    appendBytes(value);
    return *this;
}

SetFile& SetFile::number(std::string_view name, std::size_t value) {
    member(name);
    json_.append(std::to_string(value));
    return *this;
}

SetFile& SetFile::names(std::string_view name, std::span<const std::string> values) {
    member(name);
    json_.push_back('[');
    for (const std::string& value : values) {
        json_.append(json_.back() == '[' ? "" : ",");
        appendBytes(value);
    }
    json_.push_back(']');
    return *this;
}

void SetFile::write(const DataFiles& files) const {
    files.write("set", json_ + "}");
}

}  // namespace quillmark
