#include <dlfcn.h>

#include "component/client/component_library.h"
#include "component/client/posix/class_lookup.h"
#include "dochtml/entry_points.h"

namespace quillmark {

Apartment::Apartment() = default;
Apartment::~Apartment() = default;

Component::Library::Library(const std::string& file)
    : handle_(dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL)) {
    if (handle_ == nullptr) {
        throw ComponentError(dlerror(), CO_E_DLLNOTFOUND);
    }
}

Component::Library::~Library() {
    const auto canUnload = reinterpret_cast<DochtmlEntryPoint>(find("DllCanUnloadNow"));
    if (canUnload == nullptr || canUnload() == S_OK) {
        dlclose(handle_);
    }
}

void* Component::Library::find(const char* name) const noexcept {
    return dlsym(handle_, name);
}

Component Component::byName(const std::string& identifier) {
    const RegisteredClass found = findRegisteredClass(identifier);
    return fromLibrary(found.library, found.classId);
}

const char* componentLibraryName() noexcept {
    return "libdochtmlcom.so";
}

}  // namespace quillmark
