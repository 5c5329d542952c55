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

std::string repeated(std::string_view tag, std::int32_t level) {
    std::string tags;
    for (std::int32_t i = 0; i < std::min(level, deepestList); ++i) {
        tags.append(tag);
    }
    return tags;
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

std::string headingOpening(std::int32_t level) {
    if (level <= deepestElement) {
        return "<H" + std::to_string(level) + ">";
    }
    return "<DIV CLASS=H" + std::to_string(std::min(level, deepestClass)) + ">";
}

std::string headingClosing(std::int32_t level) {
    return level <= deepestElement ? "</H" + std::to_string(level) + ">\n"
                                   : std::string("</DIV>\n");
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
    std::string tags;
    if (name.starts_with(style_names::heading)) {
        tags = headingOpening(level);
    } else if (name.starts_with(style_names::numberedList)) {
        tags = repeated("<OL>", level);
    } else if (name.starts_with(style_names::bulletedList)) {
        tags = repeated("<UL>", level);
    }
    if (!tags.empty()) {
        out_.writeOut(tags);
    }
}

std::int32_t ParagraphStyle::closeStyle(std::string_view name) {
    std::int32_t level = 0;
    std::string tags;
    if (name.starts_with(style_names::heading)) {
        level = style_names::levelAfter(style_names::heading, name);
        tags = headingClosing(level);
    } else if (name.starts_with(style_names::numberedList)) {
        tags = repeated("</OL>\n", style_names::levelAfter(style_names::numberedList, name));
    }
    // A bulleted list is never closed, because existing reports rely on the indentation staying.
    if (!tags.empty()) {
        out_.writeOut(tags);
    }
    return level;
}

void ParagraphStyle::openAlign(TextAlign align) {
    if (align == TextAlign::none) {
        return;
    }
    std::string tag("<DIV align=");
    out_.writeOut(tag.append(sideOf(align)).append(">"));
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

void ParagraphStyle::setStyle(const OrxString& name) {
    DocHtmlTextState& state = out_.state();
    if (name == state.styleName) {
        font_.close();
        return;
    }
    OrxString next = name;
    const TextAlign align = state.textAlign;
    endAlign();
    font_.close();
    endStyle();
    // The style counts as set even if there is no memory for its tags.
    headingLevel_ = static_cast<std::uint32_t>(levelOf(next));
    if (next.startsWith(style_names::listWithBlank)) {
        listItemOpen_ = false;
    }
    state.styleName = std::move(next);
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
