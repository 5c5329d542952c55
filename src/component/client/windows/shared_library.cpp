#include "component/client/shared_library.h"

#include "component/windows/wide_text.h"
#include "dochtml/client.h"
#include "platform/windows/windows_api.h"

namespace quillmark {

SharedLibrary::SharedLibrary(const std::string& file)
    : handle_(LoadLibraryW(toWide(file).c_str())) {
    if (handle_ == nullptr) {
        throw ComponentError("cannot load " + file, HRESULT_FROM_WIN32(GetLastError()));
    }
}

void* SharedLibrary::find(const char* name) const noexcept {
    return reinterpret_cast<void*>(GetProcAddress(static_cast<HMODULE>(handle_), name));
}

void SharedLibrary::unload() noexcept {
    FreeLibrary(static_cast<HMODULE>(handle_));
}

}  // namespace quillmark
