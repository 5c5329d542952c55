// A report generator in small, in C++: makes a document by the component's name and writes a
// report of two pages.
//
//     report OUTPUT-FILE STYLE-SHEET [COMPONENT]
//
// COMPONENT is a program identifier, "DocHtml.DocHtml" when left out, or the file of a library.

#include <iostream>
#include <string>

#include "dochtml/client.h"

using quillmark::Apartment;
using quillmark::Component;
using quillmark::Text;
using quillmark::textFromUtf8;

namespace {

Component openComponent(const std::string& name) {
    const bool isFile = name.find_first_of("/\\") != std::string::npos;
    return isFile ? Component::fromLibrary(name) : Component::byName(name);
}

void writeRow(IDocument& document, const char16_t* name, const char16_t* value) {
    document.addRow();
    document.addCell();
    document.insertText(Text(name).get());
    document.addCell();
    document.insertText(Text(value).get());
}

void writeReport(IDocument& document, const Text& fileName, const Text& styleSheet) {
    document.overrideRegistry(Text(u"Html").get(), Text(u"StyleSheet").get(), styleSheet.get(), 0);
    document.create(fileName.get());
    document.setOption(Text(u"title").get(), Text(u"A small report").get());
    document.startFooter();
    document.insertText(Text(u"Page ").get());
    document.insertField(4);
    document.endFooter();

    document.setStyle(Text(u"Heading 1").get());
    document.insertText(Text(u"Results").get());
    document.insertEndl();
    document.setStyle(Text(u"Normal").get());
    document.insertText(Text(u"The figures are in ").get());
    document.insertXref(Text(u"the table").get(), Text(u"figures").get());
    document.insertText(Text(u", those of Z\u00FCrich too.").get());
    document.insertEndl();

    document.insertPageBreak();
    document.setStyle(Text(u"Heading 1").get());
    document.insertTag(Text(u"figures").get());
    document.insertText(Text(u"Figures").get());
    document.insertEndl();
    document.setStyle(Text(u"Normal").get());
    document.startTable();
    writeRow(document, u"North", u"12");
    writeRow(document, u"South", u"9");
    document.endTable();
    document.setFontAttribute(1, VARIANT_TRUE);
    document.insertText(Text(u"That is all.").get());
    document.close();
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 3) {
        std::cerr << "Usage: report OUTPUT-FILE STYLE-SHEET [COMPONENT]\n";
        return 2;
    }
    try {
        const Apartment apartment;
        const Component component = openComponent(argc > 3 ? argv[3] : "DocHtml.DocHtml");
        const auto document = component.createDocument();
        writeReport(*document.get(), textFromUtf8(argv[1]), textFromUtf8(argv[2]));
    } catch (const quillmark::ComponentError& failure) {
        std::cerr << "report: " << failure.what() << '\n';
        return 1;
    }
    return 0;
}
