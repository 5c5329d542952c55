#include "component/registration/server_registration.h"

#include <iterator>

#include "component/object/type_information.h"
#include "component/registration/class_key_store.h"
#include "component/registration/module_files.h"
#include "component/registration/registrar.h"

namespace quillmark {
namespace {

std::vector<RegisteredKey> serverKeys() {
    const std::string module = modulePath();
    std::vector<RegisteredKey> keys =
        readRegistrationScript(registrationScript(driverScript), module);
    std::vector<RegisteredKey> pageKeys =
        readRegistrationScript(registrationScript(pageScript), module);
    keys.insert(keys.end(), std::make_move_iterator(pageKeys.begin()),
                std::make_move_iterator(pageKeys.end()));
    return keys;
}

/// Opens the store and passes it to `change`. Makes the changes permanent when that succeeds.
template <typename Change>
HRESULT changeStore(Change change) {
    std::unique_ptr<ClassKeyStore> store;
    const HRESULT opened = openClassKeyStore(store);
    if (FAILED(opened)) {
        return opened;
    }
    Registrar registrar(*store, serverKeys());
    const HRESULT changed = change(registrar);
    return SUCCEEDED(changed) ? registrar.keep() : changed;
}

}  // namespace

HRESULT registerServer() {
    return changeStore([](Registrar& registrar) {
        const HRESULT result = registrar.registerKeys();
        return SUCCEEDED(result) ? registerTypeLibrary() : result;
    });
}

HRESULT unregisterServer() {
    return changeStore([](Registrar& registrar) {
        const HRESULT result = registrar.unregisterKeys();
        return SUCCEEDED(result) ? unregisterTypeLibrary() : result;
    });
}

}  // namespace quillmark
