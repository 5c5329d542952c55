#include <map>
#include <mutex>
#include <new>
#include <optional>

#include "dochtml/client.h"
#include "dochtml/dochtml_c.h"

namespace quillmark {
namespace {

/// Keeps the components that a C host uses, because the host itself has no object for them. Keeps
/// only those that hold their library themselves. A component that the system found by name
/// belongs to the apartment of the calling thread, and the system keeps it as long as that
/// apartment exists.
class OpenComponents {
public:
    using Open = Component (*)(const std::string& name);

    explicit OpenComponents(Open open) noexcept : open_(open) {}

    Component get(const std::string& name) {
        const std::lock_guard lock(mutex_);
        const auto found = components_.find(name);
        if (found != components_.end()) {
            return found->second;
        }
        Component component = open_(name);
        if (component.holdsLibrary()) {
            components_.emplace(name, component);
        }
        return component;
    }

private:
    Open open_;
    std::mutex mutex_;
    std::map<std::string, Component> components_;
};

Component openLibrary(const std::string& file) {
    return Component::fromLibrary(file);
}

// Never destroyed, because a document may exist until the process ends.
OpenComponents& componentsByName() {
    static OpenComponents& components = *new OpenComponents(&Component::byName);
    return components;
}
OpenComponents& componentsByFile() {
    static OpenComponents& components = *new OpenComponents(&openLibrary);
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

/// The thread's apartment, from its first `dochtml_initialize` to the matching
/// `dochtml_uninitialize`.
class NestedApartment {
public:
    void enter() {
        if (depth_ == 0) {
            apartment_.emplace();
        }
        ++depth_;
    }
    void leave() noexcept {
        if (depth_ > 0 && --depth_ == 0) {
            apartment_.reset();
        }
    }

private:
    std::optional<Apartment> apartment_;
    unsigned depth_ = 0;
};

NestedApartment& threadsApartment() {
    thread_local NestedApartment apartment;
    return apartment;
}

HRESULT createDocument(OpenComponents& components, const char* name,
                       DochtmlDocument** document) noexcept {
    return guarded(name, document, [&] {
        *document = nullptr;
        return components.get(name).classObject()->CreateInstance(
            nullptr, IID_IDocument, reinterpret_cast<void**>(document));
    });
}

HRESULT findServices(OpenComponents& components, const char* name,
                     DochtmlHostServices** services) noexcept {
    return guarded(name, services, [&] {
        *services = nullptr;
        return components.get(name).classObject()->QueryInterface(
            IID_IHostServices, reinterpret_cast<void**>(services));
    });
}

}  // namespace
}  // namespace quillmark

HRESULT dochtml_initialize() {
    try {
        quillmark::threadsApartment().enter();
        return S_OK;
    } catch (const quillmark::ComponentError& error) {
        return error.result();
    }
}

void dochtml_uninitialize() {
    quillmark::threadsApartment().leave();
}

BSTR dochtml_text_from_utf8(const char* utf8) {
    try {
        return quillmark::textFromUtf8(utf8 == nullptr ? "" : utf8).release();
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

HRESULT dochtml_create_document(const char* identifier, DochtmlDocument** document) {
    return quillmark::createDocument(quillmark::componentsByName(), identifier, document);
}

HRESULT dochtml_create_document_from(const char* library, DochtmlDocument** document) {
    return quillmark::createDocument(quillmark::componentsByFile(), library, document);
}

HRESULT dochtml_host_services(const char* identifier, DochtmlHostServices** services) {
    return quillmark::findServices(quillmark::componentsByName(), identifier, services);
}

HRESULT dochtml_host_services_from(const char* library, DochtmlHostServices** services) {
    return quillmark::findServices(quillmark::componentsByFile(), library, services);
}
