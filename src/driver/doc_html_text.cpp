// The operations that write text, tables, links, contents entries, pictures and files.

#include "driver/doc_html.h"
#include "driver/doc_html_impl.h"
#include "driver/text/embedded_link.h"
#include "page/marks/page_marks.h"

namespace quillmark {

DocResult DocHtml::insertText(WideText text) {
    return impl_->operate("insertText", [&] {
        impl_->bytes.clear();
        impl_->context.encoding->append(impl_->bytes, text);
        insertTextCall(impl_->bytes);
    });
}

void DocHtml::insertTextCall(std::string_view text) {
    impl_->calls.call("insertText", text);
    // The text around an embedded link is traced as calls of its own.
    while (const auto link = findEmbeddedLink(text)) {
        if (!link->before.empty()) {
            insertTextCall(link->before);
        }
        insertXrefCall(link->text, link->target);
        text = link->after;
        if (text.empty()) {
            return;
        }
        impl_->calls.call("insertText", text);
    }
    impl_->text.insertText(text);
}

DocResult DocHtml::insertEndl() {
    return impl_->operate("insertEndl", [&] {
        impl_->calls.call("insertEndl");
        impl_->text.insertEndl();
    });
}

DocResult DocHtml::insertField(std::int16_t field) {
    return impl_->operate("insertField", [&] {
        impl_->calls.call("insertField", field);
        impl_->text.insertField(static_cast<FieldKind>(field));
    });
}

DocResult DocHtml::setStyle(WideText style) {
    return impl_->operate("setStyle", [&] {
        impl_->bytes.clear();
        impl_->context.encoding->append(impl_->bytes, style);
        const std::string_view name = impl_->bytes;
        impl_->calls.call("setStyle", name);
        impl_->style.setStyle(name);
    });
}

DocResult DocHtml::setTextAlign(std::int16_t textAlign) {
    return impl_->operate("setTextAlign", [&] {
        impl_->calls.call("setTextAlign", textAlign);
        impl_->style.setAlign(static_cast<TextAlign>(textAlign));
    });
}

DocResult DocHtml::setFontName(WideText name) {
    return impl_->operate("setFontName", [&] {
        const OrxString face = impl_->bytesOf(name);
        impl_->calls.call("setFontName", face.view());
        impl_->font.setName(face);
    });
}

DocResult DocHtml::setFontSize(std::int16_t size) {
    return impl_->operate("setFontSize", [&] {
        impl_->calls.call("setFontSize", size);
        impl_->font.setSize(size);
    });
}

DocResult DocHtml::setFontAttribute(std::int16_t att, bool value) {
    return impl_->operate("setFontAttribute", [&] {
        const auto attribute = static_cast<FontAttribute>(att);
        const CallTrace::Word flag{value ? "TRUE" : "FALSE"};
        if (const std::string_view word = fontAttributeWord(attribute); word.empty()) {
            impl_->calls.call("setFontAttribute", flag);
        } else {
            impl_->calls.call("setFontAttribute", CallTrace::Word{word}, flag);
        }
        impl_->font.setAttribute(attribute, value);
    });
}

DocResult DocHtml::startTable() {
    return impl_->operate("startTable", [&] {
        impl_->calls.call("startTable");
        impl_->tables.startTable();
    });
}

DocResult DocHtml::endTable() {
    return impl_->operate("endTable", [&] {
        impl_->calls.call("endTable");
        impl_->tables.endTable();
    });
}

DocResult DocHtml::addRow() {
    return impl_->operate("addRow", [&] {
        impl_->calls.call("addRow");
        impl_->tables.addRow();
    });
}

DocResult DocHtml::addCell() {
    return impl_->operate("addCell", [&] {
        impl_->calls.call("addCell");
        impl_->tables.addCell();
    });
}

DocResult DocHtml::setTableRowHeight(std::int32_t /*points*/) {
    return resultOk;
}

DocResult DocHtml::insertTag(WideText tagName) {
    return impl_->operate("insertTag", [&] {
        impl_->bytes.clear();
        impl_->context.encoding->append(impl_->bytes, tagName);
        const std::string_view name = impl_->bytes;
        impl_->calls.call("insertTag", name);
        impl_->bookmarks.define(name, BookmarkWriter::Origin::host);
    });
}

DocResult DocHtml::insertXref(WideText text, WideText tagName) {
    return impl_->operate("insertXref", [&] {
        impl_->bytes.clear();
        impl_->context.encoding->append(impl_->bytes, text);
        const std::size_t textLength = impl_->bytes.size();
        impl_->context.encoding->append(impl_->bytes, tagName);
        const std::string_view both = impl_->bytes;
        insertXrefCall(both.substr(0, textLength), both.substr(textLength));
    });
}

void DocHtml::insertXrefCall(std::string_view text, std::string_view tagName) {
    impl_->calls.call("insertXref", text, tagName);
    impl_->contents.openAnchorForHeading(impl_->style.headingLevel());
    OrxString& target = impl_->linkTarget;
    target.clear();
    target.append(tagName);
    const LinkWriter::End end = impl_->links.open(target);
    // A link that has begun must also end.
    survive(impl_->context.trace, "the text of a link", [&] { impl_->text.insertEscaped(text); });
    impl_->links.close(target, end);
}

DocResult DocHtml::startTOCEntry() {
    return impl_->operate("startTOCEntry", [&] {
        impl_->calls.call("startTOCEntry");
        impl_->contents.startEntry();
    });
}

DocResult DocHtml::endTOCEntry() {
    return impl_->operate("endTOCEntry", [&] {
        impl_->calls.call("endTOCEntry");
        impl_->contents.endEntry();
    });
}

DocResult DocHtml::insertTOC() {
    return impl_->operate("insertTOC", [&] {
        impl_->calls.call("insertTOC");
        // An unbalanced `endTable` can leave a depth below 0, which also means outside a table.
        if (!impl_->tables.hasOpenTable()) {
            impl_->context.out.page().addMark(page_marks::contentsListing, "");
        }
    });
}

DocResult DocHtml::insertImage(WideText imageFileName, WideText fileOrUrl) {
    return impl_->operate("insertImage", [&] {
        const OrxString picture = impl_->bytesOf(imageFileName);
        const OrxString target = impl_->bytesOf(fileOrUrl);
        impl_->calls.call("insertImage", picture.view(), target.view());
        impl_->images.insertImage(picture, target);
    });
}

DocResult DocHtml::insertFile(WideText fileName, std::int16_t insertAsType) {
    return impl_->operate("insertFile", [&] {
        const OrxString name = impl_->bytesOf(fileName);
        impl_->calls.call("insertFile", name.view(), insertAsType);
        impl_->files.insertFile(name, static_cast<InsertAs>(insertAsType));
    });
}

DocResult DocHtml::insertLocate() {
    return impl_->operate("insertLocate", [&] { impl_->locate.insert(); });
}

}  // namespace quillmark
