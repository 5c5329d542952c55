#include "component/registration/module_files.h"

#include "component/windows/wide_text.h"
#include "foundation/orx_exception.h"
#include "platform/windows/this_module.h"

namespace quillmark {

std::string modulePath() {
    return toUtf8(moduleFileName(thisModule()));
}

std::string registrationScript(int resource) {
    HMODULE module = thisModule();
    HRSRC found = FindResourceW(module, MAKEINTRESOURCEW(resource), L"REGISTRY");
    if (found == nullptr) {
        OrxException::raise("The library has lost a registration script.");
    }
    const void* bytes = LockResource(LoadResource(module, found));
    return {static_cast<const char*>(bytes), SizeofResource(module, found)};
}

}  // namespace quillmark
