#include "driver/text/paragraph_style.h"

#include <algorithm>
#include <string>

#include "foundation/decimal.h"

namespace quillmark {

namespace {

constexpr std::string_view headingPrefix = "Heading";
constexpr std::string_view numberPrefix = "List Number";
constexpr std::string_view bulletPrefix = "List Bullet";
constexpr std::string_view listPrefix = "List ";
constexpr std::string_view alignEnd = "</DIV>\n";

/// Headings of these levels have elements of their own, the next ones style-sheet classes.
constexpr std::int32_t deepestElement = 6;
constexpr std::int32_t deepestClass = 9;

/// A list level is a repetition of tags; far beyond any list it ends here, so that a wild number
/// cannot fill the memory.
constexpr std::int32_t deepestList = 65535;

/// The number behind as many characters as the prefix and a blank have, whatever they are: of
/// "Heading2" the digit is gone with them.
std::int32_t styleLevelOf(std::string_view prefix, std::string_view name) noexcept {
    const std::size_t skipped = std::min(prefix.size() + 1, name.size());
    const std::int32_t level = leadingInteger(name.substr(skipped));
    return level == 0 ? 1 : level;
}

std::string repeated(std::string_view tag, std::int32_t level) {
    std::string tags;
    for (std::int32_t i = 0; i < std::min(level, deepestList); ++i) {
        tags.append(tag);
    }
    return tags;
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

}  // namespace

std::int32_t ParagraphStyle::openStyle(std::string_view name) {
    std::int32_t level = 0;
    std::string tags;
    if (name.starts_with(headingPrefix)) {
        level = styleLevelOf(headingPrefix, name);
        tags = headingOpening(level);
    } else if (name.starts_with(numberPrefix)) {
        level = styleLevelOf(numberPrefix, name);
        tags = repeated("<OL>", level);
    } else if (name.starts_with(bulletPrefix)) {
        level = styleLevelOf(bulletPrefix, name);
        tags = repeated("<UL>", level);
    }
    if (!tags.empty()) {
        out_.writeOut(tags);
    }
    return level;
}

std::int32_t ParagraphStyle::closeStyle(std::string_view name) {
    std::int32_t level = 0;
    std::string tags;
    if (name.starts_with(headingPrefix)) {
        level = styleLevelOf(headingPrefix, name);
        tags = headingClosing(level);
    } else if (name.starts_with(numberPrefix)) {
        tags = repeated("</OL>\n", styleLevelOf(numberPrefix, name));
    }
    // Nothing closes a bulleted list: reports rely on its indentation going on.
    if (!tags.empty()) {
        out_.writeOut(tags);
    }
    return level;
}

void ParagraphStyle::openAlign(std::uint16_t code) {
    if (code == 0) {
        return;
    }
    const std::string_view side = code == 2 ? "center" : code == 3 ? "right" : "left";
    out_.writeOut(std::string("<DIV align=").append(side).append(">"));
}

void ParagraphStyle::closeAlignTag() {
    if (out_.state().textAlign != 0) {
        out_.writeOut(alignEnd);
    }
}

void ParagraphStyle::endAlign() {
    if (out_.state().textAlign != 0) {
        out_.writeOut(alignEnd);
        out_.state().textAlign = 0;
        contents_.completeHeading();
    }
}

void ParagraphStyle::endStyle() {
    if (closeStyle(out_.state().styleName) != 0) {
        contents_.completeHeading();
    }
    out_.state().styleName.clear();
}

void ParagraphStyle::setStyle(const OrxString& name) {
    DocHtmlTextState& state = out_.state();
    if (name == state.styleName) {
        font_.close();
        return;
    }
    const std::uint16_t align = state.textAlign;
    endAlign();
    font_.close();
    endStyle();
    headingLevel_ = static_cast<std::uint32_t>(openStyle(name));
    if (name.startsWith(listPrefix)) {
        listItemOpen_ = false;
    }
    state.styleName = name;
    openAlign(align);
    state.textAlign = align;
}

void ParagraphStyle::setAlign(std::uint16_t code) {
    endAlign();
    openAlign(code);
    out_.state().textAlign = code;
}

void ParagraphStyle::closeAll() {
    font_.close();
    endStyle();
    endAlign();
}

}  // namespace quillmark
