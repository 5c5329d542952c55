#include <exception>
#include <iostream>

#include "dochtml/client.h"

using namespace quillmark;

namespace {

void sayHello(const Text& fileName, const Text& styleSheet) {
    const Apartment apartment;
    const Component component = Component::byName("DocHtml.DocHtml");
    const ComPointer<IDocument> document = component.createDocument();
    document->overrideRegistry(Text(u"Html").get(), Text(u"StyleSheet").get(), styleSheet.get(), 0);
    document->create(fileName.get());
    document->setStyle(Text(u"Heading 1").get());
    document->insertText(Text(u"Hello").get());
    document->insertEndl();
    document->close();
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::cerr << "Usage: hello OUTPUT-FILE STYLE-SHEET\n";
        return 2;
    }
    try {
        sayHello(textFromUtf8(argv[1]), textFromUtf8(argv[2]));
    } catch (const std::exception& failure) {
        std::cerr << "hello: " << failure.what() << '\n';
        return 1;
    }
    return 0;
}
