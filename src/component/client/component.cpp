#include "component/client/component_library.h"
#include "dochtml/client.h"

namespace quillmark {

Component Component::fromLibrary(const std::string& file, const CLSID& classId) {
    auto library = std::make_shared<Library>(file);
    ComPointer<IClassFactory> factory = library->classObject(classId);
    return {std::move(library), std::move(factory)};
}

ComPointer<::IDocument> Component::createDocument() const {
    ComPointer<::IDocument> document;
    const HRESULT result = factory_->CreateInstance(nullptr, IID_IDocument, document.receive());
    if (FAILED(result)) {
        throw ComponentError("the component could not create a document", result);
    }
    return document;
}

ComPointer<IHostServices> Component::hostServices() const {
    return factory_.query<IHostServices>(IID_IHostServices);
}

}  // namespace quillmark
