// The operations that write text, tables, links, contents entries, pictures and files.

#include "driver/doc_html.h"
#include "driver/doc_html_impl.h"
#include "driver/text/embedded_link.h"
#include "page/page_marks.h"
#include "platform/sys_text.h"

namespace quillmark {

DocResult DocHtml::insertText(WideText text) {
    impl_->narrowed.clear();
    SysText::appendNarrow(impl_->narrowed, text);
    insertTextCall(impl_->narrowed);
    return resultOk;
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
    impl_->calls.call("insertEndl");
    impl_->text.insertEndl();
    return resultOk;
}

DocResult DocHtml::insertField(std::int16_t field) {
    impl_->calls.call("insertField", field);
    impl_->text.insertField(static_cast<FieldKind>(field));
    return resultOk;
}

DocResult DocHtml::setStyle(WideText style) {
    const OrxString name = SysText::narrow(style);
    impl_->calls.call("setStyle", name.view());
    impl_->style.setStyle(name);
    return resultOk;
}

DocResult DocHtml::setTextAlign(std::int16_t textAlign) {
    impl_->calls.call("setTextAlign", textAlign);
    impl_->style.setAlign(static_cast<TextAlign>(textAlign));
    return resultOk;
}

DocResult DocHtml::setFontName(WideText name) {
    const OrxString face = SysText::narrow(name);
    impl_->calls.call("setFontName", face.view());
    impl_->font.setName(face);
    return resultOk;
}

DocResult DocHtml::setFontSize(std::int16_t size) {
    impl_->calls.call("setFontSize", size);
    impl_->font.setSize(size);
    return resultOk;
}

DocResult DocHtml::setFontAttribute(std::int16_t att, bool value) {
    const auto attribute = static_cast<FontAttribute>(att);
    const CallTrace::Word flag{value ? "TRUE" : "FALSE"};
    if (const std::string_view word = fontAttributeWord(attribute); word.empty()) {
        impl_->calls.call("setFontAttribute", flag);
    } else {
        impl_->calls.call("setFontAttribute", CallTrace::Word{word}, flag);
    }
    impl_->font.setAttribute(attribute, value);
    return resultOk;
}

DocResult DocHtml::startTable() {
    impl_->calls.call("startTable");
    impl_->tables.startTable();
    return resultOk;
}

DocResult DocHtml::endTable() {
    impl_->calls.call("endTable");
    impl_->tables.endTable();
    return resultOk;
}

DocResult DocHtml::addRow() {
    impl_->calls.call("addRow");
    impl_->tables.addRow();
    return resultOk;
}

DocResult DocHtml::addCell() {
    impl_->calls.call("addCell");
    impl_->tables.addCell();
    return resultOk;
}

DocResult DocHtml::setTableRowHeight(std::int32_t /*points*/) {
    return resultOk;
}

DocResult DocHtml::insertTag(WideText tagName) {
    impl_->narrowed.clear();
    SysText::appendNarrow(impl_->narrowed, tagName);
    const std::string_view name = impl_->narrowed;
    impl_->calls.call("insertTag", name);
    impl_->bookmarks.define(name, BookmarkWriter::Origin::host);
    return resultOk;
}

DocResult DocHtml::insertXref(WideText text, WideText tagName) {
    impl_->narrowed.clear();
    SysText::appendNarrow(impl_->narrowed, text);
    const std::size_t textLength = impl_->narrowed.size();
    SysText::appendNarrow(impl_->narrowed, tagName);
    const std::string_view both = impl_->narrowed;
    insertXrefCall(both.substr(0, textLength), both.substr(textLength));
    return resultOk;
}

void DocHtml::insertXrefCall(std::string_view text, std::string_view tagName) {
    impl_->calls.call("insertXref", text, tagName);
    impl_->contents.openAnchorForHeading(impl_->style.headingLevel());
    OrxString& target = impl_->linkTarget;
    target.clear();
    target.append(tagName);
    const LinkWriter::End end = impl_->links.open(target);
    impl_->text.insertEscaped(text);
    impl_->links.close(target, end);
}

DocResult DocHtml::startTOCEntry() {
    impl_->calls.call("startTOCEntry");
    impl_->contents.startEntry();
    return resultOk;
}

DocResult DocHtml::endTOCEntry() {
    impl_->calls.call("endTOCEntry");
    impl_->contents.endEntry();
    return resultOk;
}

DocResult DocHtml::insertTOC() {
    impl_->calls.call("insertTOC");
    // An unbalanced `endTable` can leave a depth below 0, which also means outside a table.
    if (!impl_->tables.hasOpenTable()) {
        impl_->context.out.page().addMark(page_marks::contentsListing, "");
    }
    return resultOk;
}

DocResult DocHtml::insertImage(WideText imageFileName, WideText fileOrUrl) {
    const OrxString picture = SysText::narrow(imageFileName);
    const OrxString target = SysText::narrow(fileOrUrl);
    impl_->calls.call("insertImage", picture.view(), target.view());
    impl_->images.insertImage(picture, target);
    return resultOk;
}

DocResult DocHtml::insertFile(WideText fileName, std::int16_t insertAsType) {
    const OrxString name = SysText::narrow(fileName);
    impl_->calls.call("insertFile", name.view(), insertAsType);
    impl_->files.insertFile(name, static_cast<InsertAs>(insertAsType));
    return resultOk;
}

DocResult DocHtml::insertLocate() {
    impl_->locate.insert();
    return resultOk;
}

}  // namespace quillmark
