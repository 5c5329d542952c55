#include "component/registration/module_files.h"

#include "component/windows/module_handle.h"
#include "component/windows/wide_text.h"
#include "foundation/orx_exception.h"

namespace quillmark {

HMODULE moduleHandle() noexcept {
    HMODULE module = nullptr;
    const auto* address = reinterpret_cast<LPCWSTR>(&moduleHandle);
    GetModuleHandleExW(
        GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
        address, &module);
    return module;
}

std::wstring wideModulePath() {
    std::wstring path(MAX_PATH, L'\0');
    for (;;) {
        const DWORD length =
            GetModuleFileNameW(moduleHandle(), path.data(), static_cast<DWORD>(path.size()));
        if (length < path.size()) {
            path.resize(length);
            return path;
        }
        path.resize(path.size() * 2);
    }
}

std::string modulePath() {
    return toUtf8(wideModulePath());
}

std::string registrationScript(int resource) {
    HMODULE module = moduleHandle();
    HRSRC found = FindResourceW(module, MAKEINTRESOURCEW(resource), L"REGISTRY");
    if (found == nullptr) {
        OrxException::raise("The library has lost a registration script.");
    }
    const void* bytes = LockResource(LoadResource(module, found));
    return {static_cast<const char*>(bytes), SizeofResource(module, found)};
}

}  // namespace quillmark
