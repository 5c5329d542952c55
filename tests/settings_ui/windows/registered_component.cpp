#include "settings_ui/windows/registered_component.h"

namespace quillmark {

RegisteredComponent::RegisteredComponent(const std::string& file)
    : library_(LoadLibraryA(file.c_str())), registered_(call("DllRegisterServer")) {}

RegisteredComponent::~RegisteredComponent() {
    if (registered_) {
        call("DllUnregisterServer");
    }
}

bool RegisteredComponent::call(const char* entryPoint) const {
    if (library_ == nullptr) {
        return false;
    }
    const auto function = reinterpret_cast<HRESULT(WINAPI*)()>(
        reinterpret_cast<void*>(GetProcAddress(library_, entryPoint)));
    return function != nullptr && SUCCEEDED(function());
}

}  // namespace quillmark
