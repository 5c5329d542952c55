#include "settings_ui/windows/windows_page_host.h"

#include <array>
#include <memory>
#include <string>

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
std::string filterOf(const FileChoice& choice) {
    std::string filter = choice.filterName;
    filter += '\0';
    filter += choice.pattern;
    filter += '\0';
    return filter;
}

}  // namespace

void WindowsPageHost::showMessage(const OrxString& text, const OrxString& title) {
    MessageBoxA(owner_(), text.data(), title.data(), MB_OK | MB_ICONEXCLAMATION);
}

std::optional<OrxString> WindowsPageHost::chooseDirectory(const OrxString& title) {
    std::array<char, MAX_PATH> path{};
    BROWSEINFOA browse{};
    browse.hwndOwner = owner_();
    browse.pszDisplayName = path.data();
    browse.lpszTitle = title.data();
    const std::unique_ptr<ITEMIDLIST, TaskMemoryDeleter> chosen(SHBrowseForFolderA(&browse));
    if (chosen == nullptr || SHGetPathFromIDListA(chosen.get(), path.data()) == FALSE) {
        return std::nullopt;
    }
    return OrxString(path.data());
}

std::optional<OrxString> WindowsPageHost::chooseFile(const FileChoice& choice) {
    std::array<char, FileChoice::bufferSize> name{};
    choice.initialName.view().copy(name.data(), name.size() - 1);
    const std::string filter = filterOf(choice);
    OPENFILENAMEA open{};
    open.lStructSize = sizeof(open);
    open.hwndOwner = owner_();
    open.lpstrFilter = filter.c_str();
    open.lpstrFile = name.data();
    open.nMaxFile = static_cast<DWORD>(name.size());
    open.lpstrTitle = choice.title;
    open.Flags = OFN_HIDEREADONLY;
    if (GetOpenFileNameA(&open) == FALSE) {
        return std::nullopt;
    }
    return OrxString(name.data());
}

void WindowsPageHost::showHelp(const OrxString& helpFile, unsigned long context) {
    WinHelpA(owner_(), helpFile.data(), HELP_CONTEXT, context);
}

}  // namespace quillmark
