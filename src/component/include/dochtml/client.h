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

/// A component could not be found or used. `what()` says why in words; `result()` is the system's
/// result code.
class ComponentError : public std::runtime_error {
public:
    ComponentError(const std::string& words, HRESULT result)
        : std::runtime_error(words), result_(result) {}
    [[nodiscard]] HRESULT result() const noexcept { return result_; }
    /// True when the name is not registered; false when a library was found but failed to load or
    /// refused to create an object.
    [[nodiscard]] bool isNotRegistered() const noexcept {
        return result_ == REGDB_E_CLASSNOTREG || result_ == CO_E_CLASSSTRING;
    }

private:
    HRESULT result_;
};

/// Prepares the current thread for using components. On Windows it initializes the thread's
/// apartment; elsewhere it does nothing. Create it before the thread's first `Component` and
/// destroy it after the last.
class Apartment {
public:
    Apartment();
    Apartment(const Apartment&) = delete;
    Apartment& operator=(const Apartment&) = delete;
    // NOLINTNEXTLINE(performance-trivially-destructible): on Windows there is something to do.
    ~Apartment();
};

/// A class in a loaded component library. Keep the `Component` alive as long as any object that it
/// created.
///
///     Apartment apartment;
///     const Component component = Component::byName("DocHtml.DocHtml");
///     const ComPointer<IDocument> document = component.createDocument();
class Component {
public:
    /// Finds a registered class by its program identifier, with or without the version, or by its
    /// class identifier ("{474BDD91-...}"). Throws `ComponentError`.
    [[nodiscard]] static Component byName(const std::string& identifier);
    /// The file that is registered for such an identifier, in UTF-8; it may be gone since. Throws
    /// `ComponentError`.
    [[nodiscard]] static std::string registeredLibrary(const std::string& identifier);
    /// Loads the class from a library file, registered or not. `file` is its name in UTF-8. Throws
    /// `ComponentError`.
    [[nodiscard]] static Component fromLibrary(const std::string& file,
                                               const CLSID& classId = CLSID_DocHtml);

    /// Creates an object for one document. Throws `ComponentError`.
    [[nodiscard]] ComPointer<::IDocument> createDocument() const;
    /// The interface through which the host provides services to the component. Null when the
    /// component does not offer it.
    [[nodiscard]] ComPointer<IHostServices> hostServices() const;
    [[nodiscard]] IClassFactory* classObject() const noexcept { return factory_.get(); }
    /// True when this object itself keeps the library loaded; any thread may then use it. False for
    /// a component that Windows found by name: the system manages its library, and only the
    /// apartment of the thread that created the component may use it.
    [[nodiscard]] bool holdsLibrary() const noexcept { return library_ != nullptr; }

private:
    class Library;

    Component(std::shared_ptr<Library> library, ComPointer<IClassFactory> factory)
        : library_(std::move(library)), factory_(std::move(factory)) {}

    /// Declared first, so that it is released last.
    std::shared_ptr<Library> library_;
    ComPointer<IClassFactory> factory_;
};

/// Converts UTF-8, for instance a program argument, to a text. Invalid bytes become U+FFFD.
[[nodiscard]] Text textFromUtf8(std::string_view utf8);

/// The name of the component's library file on this system: "dochtmlcom.dll" or
/// "libdochtmlcom.so".
[[nodiscard]] const char* componentLibraryName() noexcept;

/// The command that removes a registration whose library is gone, to be shown to a user.
[[nodiscard]] const char* unregisterCommand() noexcept;

}  // namespace quillmark

#endif
