#include "component/registration/module_files.h"

#include <dlfcn.h>

#include <filesystem>

#include "component/posix/registration_scripts.h"

namespace quillmark {

std::string modulePath() {
    Dl_info info{};
    // Any address within the library works.
    if (dladdr(reinterpret_cast<const void*>(&modulePath), &info) == 0) {
        return {};
    }
    return std::filesystem::absolute(info.dli_fname).lexically_normal().string();
}

std::string registrationScript(int resource) {
    return resource == driverScript ? registration_scripts::driver : registration_scripts::page;
}

}  // namespace quillmark
