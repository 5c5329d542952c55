#include "host/document_observer.h"

#include "foundation/module_lifetime.h"
#include "foundation/process_wide.h"

namespace quillmark {

namespace {

constinit ProcessWide<DocumentObserver*> installedObserver;

}  // namespace

DocumentObserver& DocumentObserver::current() noexcept {
    static ModuleLifetime<DocumentObserver> silent;
    DocumentObserver* const observer = installedObserver.get();
    return observer != nullptr ? *observer : *silent;
}

DocumentObserver* DocumentObserver::install(DocumentObserver* observer) noexcept {
    return installedObserver.exchange(observer);
}

}  // namespace quillmark
