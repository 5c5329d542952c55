#include "driver/text/font_writer.h"

#include <array>
#include <utility>

namespace quillmark {

namespace {

struct AttributeRow {
    FontAttribute attribute;
    std::string_view word;
    std::string_view opening;
    std::string_view closing;
    bool FontData::*flag;
};

constexpr std::array<AttributeRow, 4> attributes = {{
    {DocBold, "DocBold", "<B>", "</B>", &FontData::bold},
    {DocItalic, "DocItalic", "<I>", "</I>", &FontData::italic},
    {DocUnderline, "DocUnderline", "<U>", "</U>", &FontData::underline},
    {DocStrike, "DocStrike", "<STRIKE>", "</STRIKE>", &FontData::strike},
}};

constexpr std::string_view baseFontOpening = "<BASEFONT SIZE = ";
constexpr std::string_view baseFontClosing = "</BASEFONT>";

const AttributeRow* findAttribute(FontAttribute attribute) noexcept {
    for (const AttributeRow& row : attributes) {
        if (row.attribute == attribute) {
            return &row;
        }
    }
    return nullptr;
}

char sizeDigit(std::int16_t points) noexcept {
    constexpr std::array<std::int16_t, 6> upperBounds = {8, 10, 12, 15, 20, 28};
    char digit = '1';
    for (const std::int16_t bound : upperBounds) {
        digit = static_cast<char>(digit + (points > bound ? 1 : 0));
    }
    return digit;
}

}  // namespace

std::string_view fontAttributeWord(FontAttribute attribute) noexcept {
    const AttributeRow* const row = findAttribute(attribute);
    return row != nullptr ? row->word : std::string_view();
}

void FontWriter::setName(const OrxString& name) {
    FontData font;
    font.name = name;
    close();
    reopen(std::move(font));  // a fresh font has no size and no attribute: nothing is written
}

void FontWriter::setSize(std::int16_t points) {
    FontData font = currentToChange();
    font.size = static_cast<std::uint16_t>(points);
    if (points == 0) {
        out_.writeOut(baseFontClosing);
    } else {
        writeBaseFont(points);
    }
    store(std::move(font));
}

void FontWriter::setAttribute(FontAttribute attribute, bool value) {
    FontData font = currentToChange();
    if (const AttributeRow* const row = findAttribute(attribute); row != nullptr) {
        font.*(row->flag) = value;
        out_.writeOut(value ? row->opening : row->closing);
    }
    store(std::move(font));
}

bool FontWriter::isDefault() const noexcept {
    return out_.inBody() && !out_.state().fontOpen;
}

const FontData& FontWriter::current() const noexcept {
    return isDefault() ? default_ : out_.state().font;
}

FontData FontWriter::currentToChange() const {
    const FontData& from = current();
    FontData font;
    font.size = from.size;
    for (const AttributeRow& row : attributes) {
        font.*(row.flag) = from.*(row.flag);
    }
    return font;
}

void FontWriter::store(FontData font) {
    DocHtmlTextState& state = out_.state();
    const bool hasName = !isDefault();
    state.fontOpen = font.size != 0 || font.hasAttribute();
    if (state.fontOpen) {
        if (hasName) {
            std::swap(font.name, state.font.name);
        }
        state.font = std::move(font);
    }
}

void FontWriter::writeBaseFont(std::int16_t points) {
    if (points != 0) {
        tags_.assign(baseFontOpening).append(1, sizeDigit(points)).append(">");
        out_.writeOut(tags_);
    }
}

void FontWriter::openTags(const FontData& font) {
    writeBaseFont(static_cast<std::int16_t>(font.size));
    for (const AttributeRow& row : attributes) {
        if (font.*(row.flag)) {
            out_.writeOut(row.opening);
        }
    }
}

void FontWriter::closeTags(const FontData& font) {
    tags_.clear();
    if (font.size != 0) {
        tags_.append(baseFontClosing);
    }
    for (const AttributeRow& row : attributes) {
        if (font.*(row.flag)) {
            tags_.append(row.closing);
        }
    }
    out_.writeOut(tags_);
}

void FontWriter::close() {
    DocHtmlTextState& state = out_.state();
    if (state.fontOpen) {
        state.fontOpen = false;
        closeTags(state.font);
    }
}

void FontWriter::switchTo(const FontData& font) {
    FontData next = font;
    close();
    reopen(std::move(next));
}

void FontWriter::reopen(FontData font) {
    DocHtmlTextState& state = out_.state();
    state.font = std::move(font);
    state.fontOpen = true;
    openTags(state.font);
}

}  // namespace quillmark
