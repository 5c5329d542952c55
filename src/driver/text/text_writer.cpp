#include "driver/text/text_writer.h"

#include "driver/text/escape_text.h"
#include "driver/text/style_names.h"
#include "platform/files/sys_file.h"
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
    if (contents_.inEntry() || style.startsWith(style_names::heading)) {
        if (!tables_.hasOpenTable()) {
            contents_.collect(html);
        }
    } else if (!style_.listItemOpen() && style.startsWith(style_names::list)) {
        out_.writeOut("<LI>");
        style_.setListItemOpen(true);
    }
    out_.writeOut(html);
    if (!html.empty() && tables_.hasOpenTable()) {
        tables_.noteText();
    }
}

void TextWriter::insertEndl() {
    if (!tables_.hasOpenTable()) {
        contents_.completeHeading();
    }
    out_.writeOut("<BR>\n");
    if (out_.inBody()) {
        style_.setListItemOpen(false);
    }
}

void TextWriter::insertField(FieldKind kind) {
    if (DocHtmlSection* const section = out_.section(out_.mode()); section != nullptr) {
        section->insertField(kind);
        return;
    }
    // The test level does not apply to dates in the body, only to those in sections.
    OrxString value;
    switch (kind) {
        case FieldKind::date:
            value = SysTime::currentDate();
            break;
        case FieldKind::time:
            value = SysTime::currentTime();
            break;
        case FieldKind::fileName:
            value = SysFile::stripDir(out_.page().getFileName());
            break;
        case FieldKind::pageNumber:
            value = OrxString(std::to_string(out_.pageNumber()));
            break;
        default:
            break;
    }
    out_.writeOut(value);
}

}  // namespace quillmark
