#include "driver/text/paragraph_style.h"

#include <algorithm>
#include <string>
#include <utility>

#include "driver/text/style_names.h"

namespace quillmark {

namespace {

constexpr std::string_view alignEnd = "</DIV>\n";

/// Headings to level 6 are HTML elements. Deeper ones are style-sheet classes, up to level 9.
constexpr std::int32_t deepestElement = 6;
constexpr std::int32_t deepestClass = 9;

/// A list tag is repeated once per level. The limit keeps an absurd level in a style name from
/// filling the memory.
constexpr std::int32_t deepestList = 65535;

void appendRepeated(std::string& tags, std::string_view tag, std::int32_t level) {
    for (std::int32_t i = 0; i < std::min(level, deepestList); ++i) {
        tags.append(tag);
    }
}

std::string_view sideOf(TextAlign align) noexcept {
    switch (align) {
        case TextAlign::center:
            return "center";
        case TextAlign::right:
            return "right";
        default:
            return "left";
    }
}

void appendHeadingOpening(std::string& tags, std::int32_t level) {
    const bool isElement = level <= deepestElement;
    tags.append(isElement ? "<H" : "<DIV CLASS=H");
    tags.append(std::to_string(std::min(level, deepestClass))).append(">");
}

void appendHeadingClosing(std::string& tags, std::int32_t level) {
    if (level <= deepestElement) {
        tags.append("</H").append(std::to_string(level)).append(">\n");
    } else {
        tags.append("</DIV>\n");
    }
}

/// The level of a heading or list; 0 for any other style.
std::int32_t levelOf(std::string_view name) noexcept {
    for (const std::string_view kind :
         {style_names::heading, style_names::numberedList, style_names::bulletedList}) {
        if (name.starts_with(kind)) {
            return style_names::levelAfter(kind, name);
        }
    }
    return 0;
}

}  // namespace

void ParagraphStyle::openStyle(std::string_view name) {
    const std::int32_t level = levelOf(name);
    tags_.clear();
    if (name.starts_with(style_names::heading)) {
        appendHeadingOpening(tags_, level);
    } else if (name.starts_with(style_names::numberedList)) {
        appendRepeated(tags_, "<OL>", level);
    } else if (name.starts_with(style_names::bulletedList)) {
        appendRepeated(tags_, "<UL>", level);
    }
    if (!tags_.empty()) {
        out_.writeOut(tags_);
    }
}

std::int32_t ParagraphStyle::closeStyle(std::string_view name) {
    std::int32_t level = 0;
    tags_.clear();
    if (name.starts_with(style_names::heading)) {
        level = style_names::levelAfter(style_names::heading, name);
        appendHeadingClosing(tags_, level);
    } else if (name.starts_with(style_names::numberedList)) {
        appendRepeated(tags_, "</OL>\n", style_names::levelAfter(style_names::numberedList, name));
    }
    // A bulleted list is never closed, because existing reports rely on the indentation staying.
    if (!tags_.empty()) {
        out_.writeOut(tags_);
    }
    return level;
}

void ParagraphStyle::openAlign(TextAlign align) {
    if (align == TextAlign::none) {
        return;
    }
    tags_.assign("<DIV align=").append(sideOf(align)).append(">");
    out_.writeOut(tags_);
}

void ParagraphStyle::closeAlignTag() {
    if (out_.state().textAlign != TextAlign::none) {
        out_.writeOut(alignEnd);
    }
}

void ParagraphStyle::endAlign() {
    if (out_.state().textAlign != TextAlign::none) {
        out_.writeOut(alignEnd);
        out_.state().textAlign = TextAlign::none;
        contents_.completeHeading();
    }
}

void ParagraphStyle::endStyle() {
    DocHtmlTextState& state = out_.state();
    if (closeStyle(state.styleName) != 0) {
        try {
            contents_.completeHeading();
        } catch (...) {
            state.styleName.clear();
            throw;
        }
    }
    state.styleName.clear();
}

void ParagraphStyle::setStyle(std::string_view name) {
    DocHtmlTextState& state = out_.state();
    if (state.styleName == name) {
        font_.close();
        return;
    }
    next_.clear();
    next_.append(name);
    const TextAlign align = state.textAlign;
    endAlign();
    font_.close();
    endStyle();
    // The style counts as set even if there is no memory for its tags.
    headingLevel_ = static_cast<std::uint32_t>(levelOf(next_));
    if (next_.startsWith(style_names::listWithBlank)) {
        listItemOpen_ = false;
    }
    std::swap(state.styleName, next_);
    openStyle(state.styleName);
    openAlign(align);
    state.textAlign = align;
}

void ParagraphStyle::setAlign(TextAlign align) {
    endAlign();
    openAlign(align);
    out_.state().textAlign = align;
}

void ParagraphStyle::closeAll() {
    font_.close();
    endStyle();
    endAlign();
}

}  // namespace quillmark
