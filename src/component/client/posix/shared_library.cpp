#include "component/client/shared_library.h"

#include <dlfcn.h>

#include "dochtml/client.h"

namespace quillmark {

SharedLibrary::SharedLibrary(const std::string& file)
    : handle_(dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL)) {
    if (handle_ == nullptr) {
        throw ComponentError(dlerror(), CO_E_DLLNOTFOUND);
    }
}

void* SharedLibrary::find(const char* name) const noexcept {
    return dlsym(handle_, name);
}

void SharedLibrary::unload() noexcept {
    dlclose(handle_);
}

}  // namespace quillmark
