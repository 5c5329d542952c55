#include "text_markup.h"

#include <stdexcept>

#include "blocks.h"
#include "driver/boundary/operation_table.h"

namespace quillmark::manual {

namespace {

std::string embeddedLink(const std::string& tag, const std::string& text) {
    return "<a href=\"#" + tag + "\">" + text + "</a>";
}

std::string codeMarkup(const std::string& text) {
    return "<CODE>" + shown(text) + "</CODE>";
}

std::string targetTag(const std::string& target) {
    const std::size_t blank = target.find(' ');
    const std::string kind = target.substr(0, blank);
    const std::string name = blank == std::string::npos ? "" : target.substr(blank + 1);
    if (kind == "chapter") {
        return chapterTag(name);
    }
    if (kind == "group") {
        return groupTag(name);
    }
    throw std::runtime_error("a link to \"" + target + "\" leads nowhere");
}

}  // namespace

std::string shown(std::string_view text) {
    std::string html;
    for (const char character : text) {
        if (character == '&') {
            html += "&amp;";
        } else if (character == '<') {
            html += "&lt;";
        } else {
            html += character;
        }
    }
    return html;
}

std::string operationTag(const std::string& name) {
    return "GUID-operation-" + name;
}
std::string groupTag(const std::string& id) {
    return "GUID-group-" + id;
}
std::string chapterTag(const std::string& id) {
    return "GUID-chapter-" + id;
}

std::string spanMarkup(const Span& span, const std::string& current) {
    switch (span.kind) {
        case SpanKind::code:
            if (span.text != current && findOperation(span.text) != nullptr) {
                return embeddedLink(operationTag(span.text), codeMarkup(span.text));
            }
            return codeMarkup(span.text);
        case SpanKind::link:
            return embeddedLink(targetTag(span.target), shown(span.text));
        case SpanKind::bold:
        case SpanKind::text:
            break;
    }
    return shown(span.text);
}

}  // namespace quillmark::manual
