#include "component/services/module_confinement.h"

#include <memory>
#include <mutex>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "component/services/callback_text.h"
#include "foundation/module_lifetime.h"
#include "platform/files/confinement.h"

namespace quillmark {
namespace {

/// The confined file system of the module while there is one.
class ModuleFiles {
public:
    ModuleFiles(const ModuleFiles&) = delete;
    ModuleFiles& operator=(const ModuleFiles&) = delete;
    ~ModuleFiles() { FileSystem::install(nullptr); }

    void use(std::unique_ptr<FileSystem> files) {
        const std::lock_guard lock(mutex_);
        FileSystem::install(files.get());
        // A document that is still there may use the old one. There are never many.
        kept_.push_back(std::move(files));
    }

private:
    friend class ModuleLifetime<ModuleFiles>;
    ModuleFiles() = default;

    std::mutex mutex_;
    std::vector<std::unique_ptr<FileSystem>> kept_;
};

ModuleFiles& moduleFiles() {
    static ModuleLifetime<ModuleFiles> files;
    return *files;
}

std::vector<std::string> namesOf(const DochtmlText* texts, size_t count) {
    std::vector<std::string> names;
    for (const DochtmlText& text : std::span(texts, texts == nullptr ? 0 : count)) {
        names.emplace_back(viewOf(text));
    }
    return names;
}

LONG accessCode(RefusedAccess access) noexcept {
    switch (access) {
        case RefusedAccess::write:
            return dochtmlWrite;
        case RefusedAccess::start:
            return dochtmlStart;
        case RefusedAccess::read:
            break;
    }
    return dochtmlRead;
}

}  // namespace

HRESULT setModuleConfinement(const DochtmlConfinement* confinement) {
    if (confinement == nullptr) {
        moduleFiles().use(nullptr);
        return S_OK;
    }
    if (confinement->refused == nullptr) {
        return E_INVALIDARG;
    }
    const auto tell = [host = *confinement](const std::string& name, RefusedAccess access) {
        const DochtmlText text = callbackText(name);
        host.refused(host.context, &text, accessCode(access));
    };
    auto files =
        makeConfinedFileSystem({namesOf(confinement->writable, confinement->writableCount),
                                namesOf(confinement->readable, confinement->readableCount), tell});
    if (files == nullptr) {
        return E_NOTIMPL;
    }
    moduleFiles().use(std::move(files));
    return S_OK;
}

}  // namespace quillmark
