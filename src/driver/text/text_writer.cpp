#include "driver/text/text_writer.h"

#include "driver/text/escape_text.h"
#include "platform/sys_file.h"
#include "platform/sys_time.h"

namespace quillmark {

void TextWriter::insertEscaped(std::string_view text) {
    emitText(escapeText(text, passThrough_, escaped_));
}

void TextWriter::emitText(std::string_view html) {
    if (!out_.inBody()) {
        out_.writeOut(html);
        return;
    }
    const OrxString& style = out_.state().styleName;
    if (contents_.inEntry() || style.startsWith("Heading")) {
        if (!tables_.insideTable()) {
            contents_.collect(html);
        }
    } else if (!style_.listItemOpen() && style.startsWith("List")) {
        out_.writeOut("<LI>");
        style_.setListItemOpen(true);
    }
    out_.writeOut(html);
    if (!html.empty() && tables_.insideTable()) {
        tables_.noteText();
    }
}

void TextWriter::insertEndl() {
    if (!tables_.insideTable()) {
        contents_.completeHeading();
    }
    out_.writeOut("<BR>\n");
    if (out_.inBody()) {
        style_.setListItemOpen(false);
    }
}

void TextWriter::insertField(std::int16_t kind, std::uint32_t pageNumber) {
    if (DocHtmlSection* const section = out_.section(out_.mode()); section != nullptr) {
        section->insertField(kind);
        return;
    }
    // Dates in the body are always the real ones: only sections know the test level.
    OrxString value;
    switch (kind) {
        case 1:
            value = SysTime::currentDate();
            break;
        case 2:
            value = SysTime::currentTime();
            break;
        case 3:
            value = SysFile::stripDir(out_.page().getFileName());
            break;
        case 4:
            value = OrxString(std::to_string(pageNumber));
            break;
        default:
            break;
    }
    out_.writeOut(value);
}

}  // namespace quillmark
