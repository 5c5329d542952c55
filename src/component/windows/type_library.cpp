#include "component/object/type_information.h"
#include "dochtml/com_pointer.h"
#include "dochtml/document.h"
#include "dochtml/text.h"
#include "platform/windows/this_module.h"

namespace quillmark {
namespace {

constexpr WORD majorVersion = 2;
constexpr WORD minorVersion = 0;
constexpr LCID englishUnitedStates = 1033;
constexpr SYSKIND systemKind = sizeof(void*) == 8 ? SYS_WIN64 : SYS_WIN32;

/// The type library is resource 1 of this module. A file name without a number refers to it.
HRESULT loadTypeLibrary(ComPointer<ITypeLib>& library) {
    return LoadTypeLibEx(moduleFileName(thisModule()).c_str(), REGKIND_NONE,
                         reinterpret_cast<ITypeLib**>(library.receive()));
}

}  // namespace

UINT documentTypeInfoCount() noexcept {
    return 1;
}

HRESULT documentTypeInfo(LCID /*locale*/, ITypeInfo** info) {
    ComPointer<ITypeLib> library;
    const HRESULT loaded = loadTypeLibrary(library);
    return FAILED(loaded) ? loaded : library->GetTypeInfoOfGuid(IID_IDocument, info);
}

HRESULT registerTypeLibrary() {
    ComPointer<ITypeLib> library;
    const HRESULT loaded = loadTypeLibrary(library);
    if (FAILED(loaded)) {
        return loaded;
    }
    std::wstring path = moduleFileName(thisModule());
    return RegisterTypeLib(library.get(), path.data(), nullptr);
}

HRESULT unregisterTypeLibrary() {
    Text path;
    if (FAILED(QueryPathOfRegTypeLib(LIBID_DOCHTMLCOMLib, majorVersion, minorVersion,
                                     englishUnitedStates, path.receive()))) {
        // It was not registered, so there is nothing to remove.
        return S_OK;
    }
    return UnRegisterTypeLib(LIBID_DOCHTMLCOMLib, majorVersion, minorVersion, englishUnitedStates,
                             systemKind);
}

}  // namespace quillmark
