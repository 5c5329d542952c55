#include "component/server_registration.h"

#include <iterator>

#include "component/class_key_store.h"
#include "component/module_files.h"
#include "component/registrar.h"
#include "component/type_information.h"

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

}  // namespace

HRESULT registerServer() {
    const auto store = openClassKeyStore();
    Registrar registrar(*store, serverKeys());
    HRESULT result = registrar.registerKeys();
    if (SUCCEEDED(result)) {
        result = registerTypeLibrary();
    }
    return SUCCEEDED(result) ? registrar.keep() : result;
}

HRESULT unregisterServer() {
    const auto store = openClassKeyStore();
    Registrar registrar(*store, serverKeys());
    HRESULT result = registrar.unregisterKeys();
    if (SUCCEEDED(result)) {
        result = unregisterTypeLibrary();
    }
    return SUCCEEDED(result) ? registrar.keep() : result;
}

}  // namespace quillmark
