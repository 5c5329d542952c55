#include <map>
#include <mutex>
#include <new>
#include <optional>

#include "dochtml/client.h"
#include "dochtml/dochtml_c.h"

namespace quillmark {
namespace {

/// Every component that a C host has asked for; a C host has nothing to hold one by.
class OpenComponents {
public:
    template <typename Open>
    const Component& get(const std::string& name, Open open) {
        const std::lock_guard lock(mutex_);
        const auto found = components_.find(name);
        return found != components_.end() ? found->second
                                          : components_.emplace(name, open(name)).first->second;
    }

private:
    std::mutex mutex_;
    std::map<std::string, Component> components_;
};

OpenComponents& openComponents() {
    // Never destroyed: a document may live until the very end of the process.
    static OpenComponents& components = *new OpenComponents;
    return components;
}

template <typename Body>
HRESULT guarded(const char* name, void* out, Body&& body) noexcept {
    if (name == nullptr || out == nullptr) {
        return E_POINTER;
    }
    try {
        return body();
    } catch (const ComponentError& error) {
        return error.result();
    } catch (const std::bad_alloc&) {
        return E_OUTOFMEMORY;
    } catch (...) {
        return E_UNEXPECTED;
    }
}

/// The thread's apartment between `dochtml_initialize` and `dochtml_uninitialize`.
std::optional<Apartment>& threadsApartment() {
    thread_local std::optional<Apartment> apartment;
    return apartment;
}

Component openLibrary(const std::string& file) {
    return Component::fromLibrary(file);
}

template <typename Open>
HRESULT createDocument(const char* name, DochtmlDocument** document, Open open) noexcept {
    return guarded(name, document, [&] {
        *document = nullptr;
        return openComponents()
            .get(name, open)
            .classObject()
            ->CreateInstance(nullptr, IID_IDocument, reinterpret_cast<void**>(document));
    });
}

template <typename Open>
HRESULT findServices(const char* name, DochtmlHostServices** services, Open open) noexcept {
    return guarded(name, services, [&] {
        *services = nullptr;
        return openComponents()
            .get(name, open)
            .classObject()
            ->QueryInterface(IID_IHostServices, reinterpret_cast<void**>(services));
    });
}

}  // namespace
}  // namespace quillmark

HRESULT dochtml_initialize() {
    try {
        quillmark::threadsApartment().emplace();
        return S_OK;
    } catch (const quillmark::ComponentError& error) {
        return error.result();
    }
}

void dochtml_uninitialize() {
    quillmark::threadsApartment().reset();
}

BSTR dochtml_text_from_utf8(const char* utf8) {
    try {
        return quillmark::textFromUtf8(utf8 == nullptr ? "" : utf8).release();
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

HRESULT dochtml_create_document(const char* identifier, DochtmlDocument** document) {
    return quillmark::createDocument(identifier, document, &quillmark::Component::byName);
}

HRESULT dochtml_create_document_from(const char* library, DochtmlDocument** document) {
    return quillmark::createDocument(library, document, &quillmark::openLibrary);
}

HRESULT dochtml_host_services(const char* identifier, DochtmlHostServices** services) {
    return quillmark::findServices(identifier, services, &quillmark::Component::byName);
}

HRESULT dochtml_host_services_from(const char* library, DochtmlHostServices** services) {
    return quillmark::findServices(library, services, &quillmark::openLibrary);
}
