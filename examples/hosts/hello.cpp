#include "dochtml/client.h"

using namespace quillmark;

int main(int, char** arguments) {
    const Apartment apartment;
    const Component component = Component::byName("DocHtml.DocHtml");
    const ComPointer<IDocument> document = component.createDocument();
    document->overrideRegistry(Text(u"Html").get(), Text(u"StyleSheet").get(),
                               textFromUtf8(arguments[2]).get(), 0);
    document->create(textFromUtf8(arguments[1]).get());
    document->setStyle(Text(u"Heading 1").get());
    document->insertText(Text(u"Hello").get());
    document->insertEndl();
    document->close();
}
