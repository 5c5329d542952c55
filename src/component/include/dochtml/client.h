#ifndef DOCHTML_CLIENT_H
#define DOCHTML_CLIENT_H

#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>

#include "dochtml/com_pointer.h"
#include "dochtml/document.h"
#include "dochtml/host_services.h"
#include "dochtml/text.h"

namespace quillmark {

/// Why a component could not be reached, in words and as the system's result.
class ComponentError : public std::runtime_error {
public:
    ComponentError(const std::string& words, HRESULT result)
        : std::runtime_error(words), result_(result) {}
    [[nodiscard]] HRESULT result() const noexcept { return result_; }
    /// Whether the name leads nowhere, as opposed to a library that does not load or refuses.
    [[nodiscard]] bool isNotRegistered() const noexcept {
        return result_ == REGDB_E_CLASSNOTREG || result_ == CO_E_CLASSSTRING;
    }

private:
    HRESULT result_;
};

/// The thread's right to use components: on Windows its apartment, elsewhere nothing. Make it
/// before the first `Component` of a thread and let it outlive the last.
class Apartment {
public:
    Apartment();
    Apartment(const Apartment&) = delete;
    Apartment& operator=(const Apartment&) = delete;
    // NOLINTNEXTLINE(performance-trivially-destructible): on Windows there is something to do.
    ~Apartment();
};

/// A class of a component library, found by name and loaded. It outlives what it makes.
///
///     Apartment apartment;
///     const Component component = Component::byName("DocHtml.DocHtml");
///     const ComPointer<IDocument> document = component.createDocument();
class Component {
public:
    /// By program identifier, with or without its version, or by class identifier
    /// ("{474BDD91-...}"), as registration has made them known. Throws `ComponentError`.
    [[nodiscard]] static Component byName(const std::string& identifier);
    /// From a library file (UTF-8 name) that need not be registered. Throws `ComponentError`.
    [[nodiscard]] static Component fromLibrary(const std::string& file,
                                               const CLSID& classId = CLSID_DocHtml);

    /// A fresh object for one document. Throws `ComponentError`.
    [[nodiscard]] ComPointer<::IDocument> createDocument() const;
    /// What the host lends the component; null for a component that borrows nothing.
    [[nodiscard]] ComPointer<IHostServices> hostServices() const;
    [[nodiscard]] IClassFactory* classObject() const noexcept { return factory_.get(); }
    /// Whether it keeps the library loaded itself, for any thread. One that Windows found by name
    /// is the system's, and good only in the apartment of the thread that made it.
    [[nodiscard]] bool holdsLibrary() const noexcept { return library_ != nullptr; }

private:
    class Library;

    Component(std::shared_ptr<Library> library, ComPointer<IClassFactory> factory)
        : library_(std::move(library)), factory_(std::move(factory)) {}

    /// Let go of last.
    std::shared_ptr<Library> library_;
    ComPointer<IClassFactory> factory_;
};

/// A text from UTF-8, as the arguments of a program are. What is no UTF-8 becomes U+FFFD.
[[nodiscard]] Text textFromUtf8(std::string_view utf8);

/// The name of the component's library file on this system: "dochtmlcom.dll" or
/// "libdochtmlcom.so".
[[nodiscard]] const char* componentLibraryName() noexcept;

}  // namespace quillmark

#endif
