#include "platform/text_encoding.h"

#include <algorithm>
#include <array>
#include <memory>
#include <utility>

#include "foundation/ascii.h"
#include "foundation/code_page.h"
#include "foundation/surrogates.h"
#include "foundation/utf8.h"
#include "platform/files/file_system.h"
#include "platform/sys_text.h"

namespace quillmark {

namespace {

// In force on this thread; null stands for the code page.
thread_local const TextEncoding* inForce = nullptr;

bool isAscii(std::string_view text) noexcept {
    return std::ranges::all_of(text, [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

// Never deleted: the only object is static.
// NOLINTNEXTLINE(cppcoreguidelines-virtual-class-destructor)
class CodePageEncoding final : public TextEncoding {
public:
    constexpr CodePageEncoding() = default;

    void append(std::string& out, std::u16string_view text) const override {
        SysText::appendNarrow(out, text);
    }
    [[nodiscard]] std::u16string toUtf16(std::string_view bytes) const override {
        return SysText::widen(bytes);
    }
    [[nodiscard]] std::string_view contentType() const noexcept override {
        return "text/html; iso-8859-1";
    }
    [[nodiscard]] OrxString inLink(OrxString path) const override { return path; }
    [[nodiscard]] const TextEncoding& ofText(std::string_view /*bytes*/) const override {
        return *this;
    }
    [[nodiscard]] const TextEncoding& ofFile(const OrxString& /*name*/) const override {
        return *this;
    }
    [[nodiscard]] bool beginsCharacter(unsigned char /*byte*/) const noexcept override {
        return true;
    }
    [[nodiscard]] std::string_view byteOrderMark() const noexcept override { return {}; }
};

bool isEncodedInLinks(char c) noexcept {
    return static_cast<unsigned char>(c) >= 0x80 || c == '%' || c == '#' || c == '?';
}

bool isUtf8File(const OrxString& name) {
    const std::unique_ptr<InputFile> file = FileSystem::current().openForReading(name);
    utf8::Check check;
    std::array<char, 16384> buffer{};
    while (const std::size_t taken = file == nullptr ? 0 : file->read(buffer)) {
        if (!check.take({buffer.data(), taken})) {
            return false;
        }
    }
    return check.isComplete();
}

// Never deleted: the only object is static.
// NOLINTNEXTLINE(cppcoreguidelines-virtual-class-destructor)
class Utf8Encoding final : public TextEncoding {
public:
    constexpr Utf8Encoding() = default;

    void append(std::string& out, std::u16string_view text) const override {
        utf8::append(out, text);
    }
    [[nodiscard]] std::u16string toUtf16(std::string_view bytes) const override {
        return utf8::toUtf16(bytes);
    }
    [[nodiscard]] std::string_view contentType() const noexcept override {
        return "text/html; charset=utf-8";
    }
    [[nodiscard]] OrxString inLink(OrxString path) const override {
        constexpr std::string_view digits = "0123456789ABCDEF";
        if (std::ranges::none_of(path.view(), isEncodedInLinks)) {
            return path;
        }
        std::string link;
        for (const char c : path.view()) {
            const auto byte = static_cast<unsigned char>(c);
            if (isEncodedInLinks(c)) {
                link.append({'%', digits[byte >> 4U], digits[byte & 0xFU]});
            } else {
                link.push_back(c);
            }
        }
        return link;
    }
    [[nodiscard]] const TextEncoding& ofText(std::string_view bytes) const override {
        utf8::Check check;
        return check.take(bytes) && check.isComplete() ? *this : codePage();
    }
    [[nodiscard]] const TextEncoding& ofFile(const OrxString& name) const override {
        return isUtf8File(name) ? *this : codePage();
    }
    [[nodiscard]] bool beginsCharacter(unsigned char byte) const noexcept override {
        return (byte & 0xC0U) != 0x80U;
    }
    [[nodiscard]] std::string_view byteOrderMark() const noexcept override {
        return "\xEF\xBB\xBF";
    }
};

constinit const CodePageEncoding codePageEncoding;
constinit const Utf8Encoding utf8Encoding;

}  // namespace

const TextEncoding& TextEncoding::codePage() noexcept {
    return codePageEncoding;
}

const TextEncoding& TextEncoding::utf8() noexcept {
    return utf8Encoding;
}

const TextEncoding& TextEncoding::named(std::string_view charSet) noexcept {
    return ascii::equalIgnoringCase(charSet, "UTF-8") ? utf8() : codePage();
}

const TextEncoding& TextEncoding::current() noexcept {
    return inForce == nullptr ? codePage() : *inForce;
}

TextEncoding::Scope::Scope(const TextEncoding& encoding) noexcept
    : place_(&inForce), before_(std::exchange(*place_, &encoding)) {}

TextEncoding::Scope::~Scope() {
    *place_ = before_;
}

OrxString TextEncoding::toBytes(std::u16string_view text) const {
    std::string bytes;
    append(bytes, text);
    return bytes;
}

OrxString TextEncoding::fromUtf8(std::string_view text) const {
    return isAscii(text) ? OrxString(text) : toBytes(utf8::toUtf16(text));
}

std::string TextEncoding::toUtf8(std::string_view bytes) const {
    return isAscii(bytes) ? std::string(bytes) : utf8::fromUtf16(toUtf16(bytes));
}

OrxString TextEncoding::recoded(const OrxString& bytes, const TextEncoding& from) const {
    return &from == this || isAscii(bytes) ? bytes : toBytes(from.toUtf16(bytes));
}

bool TextEncoding::holds(std::u16string_view text) const {
    return code_page::isAscii(text) || toUtf16(toBytes(text)) == text;
}

std::size_t TextEncoding::countLost(std::u16string_view text) const {
    if (holds(text)) {
        return 0;
    }
    std::size_t lost = 0;
    while (!text.empty()) {
        const std::size_t length = surrogates::firstLength(text);
        lost += holds(text.substr(0, length)) ? 0 : 1;
        text.remove_prefix(length);
    }
    return lost;
}

}  // namespace quillmark
