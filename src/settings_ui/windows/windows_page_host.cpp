#include "settings_ui/windows/windows_page_host.h"

#include <array>
#include <memory>
#include <string>

#include "settings_ui/windows/window_text.h"

// These need the types of windows_api.h above them.
#include <commdlg.h>
#include <objbase.h>
#include <shlobj.h>

namespace quillmark {

namespace {

struct TaskMemoryDeleter {
    void operator()(void* memory) const noexcept { CoTaskMemFree(memory); }
};

/// The filter of a file-open dialog: name and pattern, each followed by a zero.
std::wstring filterOf(const FileChoice& choice) {
    std::wstring filter = windowText(choice.filterName);
    filter += L'\0';
    filter += windowText(choice.pattern);
    filter += L'\0';
    return filter;
}

}  // namespace

void WindowsPageHost::showMessage(const OrxString& text, const OrxString& title) {
    MessageBoxW(owner_(), windowText(text).c_str(), windowText(title).c_str(),
                MB_OK | MB_ICONEXCLAMATION);
}

std::optional<OrxString> WindowsPageHost::chooseDirectory(const OrxString& title) {
    std::array<wchar_t, MAX_PATH> path{};
    const std::wstring shownTitle = windowText(title);
    BROWSEINFOW browse{};
    browse.hwndOwner = owner_();
    browse.pszDisplayName = path.data();
    browse.lpszTitle = shownTitle.c_str();
    const std::unique_ptr<ITEMIDLIST, TaskMemoryDeleter> chosen(SHBrowseForFolderW(&browse));
    if (chosen == nullptr || SHGetPathFromIDListW(chosen.get(), path.data()) == FALSE) {
        return std::nullopt;
    }
    return pageText(path.data());
}

std::optional<OrxString> WindowsPageHost::chooseFile(const FileChoice& choice) {
    std::array<wchar_t, FileChoice::bufferSize> name{};
    windowText(choice.initialName).copy(name.data(), name.size() - 1);
    const std::wstring filter = filterOf(choice);
    const std::wstring title = windowText(choice.title);
    OPENFILENAMEW open{};
    open.lStructSize = sizeof(open);
    open.hwndOwner = owner_();
    open.lpstrFilter = filter.c_str();
    open.lpstrFile = name.data();
    open.nMaxFile = static_cast<DWORD>(name.size());
    open.lpstrTitle = title.c_str();
    open.Flags = OFN_HIDEREADONLY;
    if (GetOpenFileNameW(&open) == FALSE) {
        return std::nullopt;
    }
    return pageText(name.data());
}

void WindowsPageHost::showHelp(const OrxString& helpFile, unsigned long context) {
    WinHelpW(owner_(), windowText(helpFile).c_str(), HELP_CONTEXT, context);
}

}  // namespace quillmark
