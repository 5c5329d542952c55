#include "foundation/orx_string.h"

#include <algorithm>
#include <cstdint>
#include <ostream>

#include "foundation/ascii.h"

namespace quillmark {

namespace {

std::string joined(std::string_view a, std::string_view b) {
    std::string result;
    result.reserve(a.size() + b.size());
    result.append(a).append(b);
    return result;
}

}  // namespace

OrxString& OrxString::append(std::string_view text) {
    bytes_.append(text);
    return *this;
}

OrxString& OrxString::append(char character) {
    bytes_.push_back(character);
    return *this;
}

OrxString& OrxString::insert(std::size_t pos, std::string_view text) {
    bytes_.insert(std::min(pos, bytes_.size()), text);
    return *this;
}

OrxString& OrxString::remove(std::size_t pos, std::size_t count) {
    if (pos < bytes_.size()) {
        bytes_.erase(pos, count);
    }
    return *this;
}

std::size_t OrxString::find(std::string_view text, std::size_t from) const noexcept {
    return bytes_.find(text, from);
}

std::size_t OrxString::first(char character) const noexcept {
    return bytes_.find(character);
}

std::size_t OrxString::last(char character) const noexcept {
    return bytes_.rfind(character);
}

bool OrxString::contains(std::string_view text) const noexcept {
    return find(text) != npos;
}

bool OrxString::startsWith(std::string_view text) const noexcept {
    return view().starts_with(text);
}

OrxString OrxString::substr(std::size_t pos, std::size_t count) const {
    return pos < bytes_.size() ? OrxString(view().substr(pos, count)) : OrxString();
}

OrxString& OrxString::replaceStr(std::string_view from, std::string_view to) {
    std::size_t hit = from.empty() ? npos : bytes_.find(from);
    if (hit == npos) {
        return *this;
    }
    // One pass into a new string. Replacing in place would move the rest of the text at each hit.
    std::string result;
    result.reserve(bytes_.size());
    std::size_t copied = 0;
    for (; hit != npos; hit = bytes_.find(from, copied)) {
        result.append(bytes_, copied, hit - copied).append(to);
        copied = hit + from.size();
    }
    result.append(bytes_, copied);
    bytes_ = std::move(result);
    return *this;
}

OrxString& OrxString::toLower() noexcept {
    std::transform(bytes_.begin(), bytes_.end(), bytes_.begin(), ascii::toLower<char>);
    return *this;
}

OrxString& OrxString::toUpper() noexcept {
    std::transform(bytes_.begin(), bytes_.end(), bytes_.begin(), ascii::toUpper<char>);
    return *this;
}

std::size_t OrxString::hash() const noexcept {
    constexpr std::uint64_t offsetBasis = 14695981039346656037U;
    constexpr std::uint64_t prime = 1099511628211U;
    std::uint64_t value = offsetBasis;
    for (const char c : bytes_) {
        value = (value ^ static_cast<unsigned char>(c)) * prime;
    }
    return static_cast<std::size_t>(value);
}

OrxString operator+(const OrxString& a, std::string_view b) {
    return joined(a, b);
}
OrxString operator+(const OrxString& a, const OrxString& b) {
    return joined(a, b);
}
OrxString operator+(const OrxString& a, const std::string& b) {
    return joined(a, b);
}
OrxString operator+(const OrxString& a, const char* b) {
    return joined(a, b);
}
OrxString operator+(std::string_view a, const OrxString& b) {
    return joined(a, b);
}
OrxString operator+(const std::string& a, const OrxString& b) {
    return joined(a, b);
}
OrxString operator+(const char* a, const OrxString& b) {
    return joined(a, b);
}

std::ostream& operator<<(std::ostream& out, const OrxString& text) {
    return out << text.view();
}

}  // namespace quillmark
