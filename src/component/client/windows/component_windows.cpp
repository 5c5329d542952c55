#include <array>

#include "component/windows/wide_text.h"
#include "dochtml/client.h"
#include "platform/windows/windows_api.h"

namespace quillmark {
namespace {

/// The default text of a key below the classes root; empty when there is none.
std::wstring defaultText(const std::wstring& key) {
    std::array<wchar_t, 1024> text{};
    auto size = static_cast<DWORD>(sizeof text);
    const LSTATUS status = RegGetValueW(HKEY_CLASSES_ROOT, key.c_str(), nullptr, RRF_RT_REG_SZ,
                                        nullptr, text.data(), &size);
    return status == ERROR_SUCCESS ? std::wstring(text.data()) : std::wstring();
}

CLSID classOf(const std::string& identifier) {
    const std::wstring name = toWide(identifier);
    CLSID classId{};
    HRESULT result = name.starts_with(L'{') ? CLSIDFromString(name.c_str(), &classId)
                                            : CLSIDFromProgID(name.c_str(), &classId);
    // A name without a version refers to the current one, but not every system follows `CurVer`.
    if (FAILED(result)) {
        const std::wstring current = defaultText(name + L"\\CurVer");
        if (!current.empty()) {
            result = CLSIDFromProgID(current.c_str(), &classId);
        }
    }
    if (FAILED(result)) {
        throw ComponentError(identifier + " is not registered", CO_E_CLASSSTRING);
    }
    return classId;
}

}  // namespace

Apartment::Apartment() {
    const HRESULT result = CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    if (FAILED(result)) {
        throw ComponentError("cannot initialize the thread's apartment", result);
    }
}

Apartment::~Apartment() {
    CoUninitialize();
}

Component Component::byName(const std::string& identifier) {
    ComPointer<IClassFactory> factory;
    const HRESULT result = CoGetClassObject(classOf(identifier), CLSCTX_INPROC_SERVER, nullptr,
                                            IID_IClassFactory, factory.receive());
    if (FAILED(result)) {
        throw ComponentError("cannot load the class of " + identifier, result);
    }
    return {nullptr, std::move(factory)};
}

std::string Component::registeredLibrary(const std::string& identifier) {
    std::array<wchar_t, 40> classId{};
    StringFromGUID2(classOf(identifier), classId.data(), static_cast<int>(classId.size()));
    const std::wstring file =
        defaultText(std::wstring(L"CLSID\\") + classId.data() + L"\\InprocServer32");
    if (file.empty()) {
        throw ComponentError("the class of " + identifier + " is not registered",
                             REGDB_E_CLASSNOTREG);
    }
    return toUtf8(file);
}

const char* componentLibraryName() noexcept {
    return "dochtmlcom.dll";
}

const char* unregisterCommand() noexcept {
    return "unregister.cmd";
}

}  // namespace quillmark
