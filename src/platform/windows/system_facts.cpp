#include "platform/system_facts.h"

#include <array>
#include <string>

#include "platform/files/windows/wide_name.h"

namespace quillmark::system_facts {

namespace {

OrxString withoutLastSeparator(std::wstring_view directory) {
    while (directory.size() > 1 && directory.back() == L'\\') {
        directory.remove_suffix(1);
    }
    return narrowText(directory);
}

}  // namespace

bool namesIgnoreCase() noexcept {
    return true;
}

bool hasDrives() noexcept {
    return true;
}

OrxString temporaryDirectory() {
    std::array<wchar_t, MAX_PATH + 1> path{};
    const DWORD length = GetTempPathW(static_cast<DWORD>(path.size()), path.data());
    return withoutLastSeparator({path.data(), length < path.size() ? length : 0});
}

OrxString userConfigurationDirectory() {
    constexpr const wchar_t* variable = L"APPDATA";
    std::wstring path(GetEnvironmentVariableW(variable, nullptr, 0), L'\0');
    path.resize(GetEnvironmentVariableW(variable, path.data(), static_cast<DWORD>(path.size())));
    return withoutLastSeparator(path);
}

std::tm localTime(std::time_t moment) {
    std::tm result{};
    localtime_s(&result, &moment);
    return result;
}

unsigned long processId() noexcept {
    return GetCurrentProcessId();
}

}  // namespace quillmark::system_facts
