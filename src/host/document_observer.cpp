#include "host/document_observer.h"

#include <atomic>

#include "foundation/lasting.h"

namespace quillmark {

namespace {

std::atomic<DocumentObserver*> installed{nullptr};

}  // namespace

DocumentObserver& DocumentObserver::current() noexcept {
    static Lasting<DocumentObserver> deaf;
    DocumentObserver* const observer = installed.load(std::memory_order_acquire);
    return observer != nullptr ? *observer : *deaf;
}

DocumentObserver* DocumentObserver::install(DocumentObserver* observer) noexcept {
    return installed.exchange(observer, std::memory_order_acq_rel);
}

}  // namespace quillmark
