#include "component/module/boundary.h"

#include <new>

#include "component/module/module_state.h"
#include "foundation/orx_exception.h"

namespace quillmark {

void logCaughtException() noexcept {
    // Logging uses a service, and not every caller has an object that counts as its user.
    const ServiceUser user;
    OrxException::logCaught();
}

HRESULT resultOfCaughtException() noexcept {
    logCaughtException();
    try {
        throw;
    } catch (const std::bad_alloc&) {
        return E_OUTOFMEMORY;
    } catch (...) {
        return E_UNEXPECTED;
    }
}

}  // namespace quillmark
