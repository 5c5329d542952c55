#include "component/client/posix/class_lookup.h"
#include "dochtml/client.h"

namespace quillmark {

Apartment::Apartment() = default;
Apartment::~Apartment() = default;

Component Component::byName(const std::string& identifier) {
    const RegisteredClass found = findRegisteredClass(identifier);
    return fromLibrary(found.library, found.classId);
}

std::string Component::registeredLibrary(const std::string& identifier) {
    return findRegisteredClass(identifier).library;
}

const char* componentLibraryName() noexcept {
    return "libdochtmlcom.so";
}

const char* unregisterCommand() noexcept {
    return "dochtml-register --unregister";
}

}  // namespace quillmark
