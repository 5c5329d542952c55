#include "component/windows/doc_html_com_page.h"

#include <algorithm>
#include <new>
#include <string>
#include <utility>

#include "settings_ui/windows/module_resources.h"

namespace quillmark {

namespace {

/// A copy of a resource string, which the caller of the component frees. Null for an empty string.
wchar_t* copiedString(WORD id) {
    const std::wstring text = resourceString(id);
    auto* const copy =
        text.empty() ? nullptr
                     : static_cast<wchar_t*>(CoTaskMemAlloc((text.size() + 1) * sizeof(wchar_t)));
    if (copy != nullptr) {
        std::copy_n(text.c_str(), text.size() + 1, copy);
    }
    return copy;
}

/// Runs the body of a function that a frame calls, and lets no exception through. Unlike
/// `runGuarded` it logs nothing, and every exception except a lack of memory becomes `E_FAIL`.
template <typename Body>
HRESULT guarded(Body&& body) noexcept {
    try {
        return std::forward<Body>(body)();
    } catch (const std::bad_alloc&) {
        return E_OUTOFMEMORY;
    } catch (...) {
        return E_FAIL;
    }
}

}  // namespace

HRESULT DocHtmlComPage::make(IUnknown* outer, REFIID iid, void** object) noexcept {
    return guarded([&] { return createAggregable<DocHtmlComPage>(outer, iid, object); });
}

DocHtmlComPage::DocHtmlComPage(IUnknown* outer)
    : AggregableObject(outer),
      window_([this](int id, ControlEvent event) { page_.handle(id, event); }),
      host_([this] { return window_.handle(); }, [this](bool dirty) { notifySite(dirty); }),
      page_(window_, host_) {}

DocHtmlComPage::~DocHtmlComPage() {
    window_.destroy();
    site_.reset();
}

IUnknown* DocHtmlComPage::findInterface(REFIID iid) noexcept {
    return IsEqualIID(iid, IID_IPropertyPage) ? this : nullptr;
}

HRESULT DocHtmlComPage::SetPageSite(IPropertyPageSite* site) {
    // A page has one frame at a time. The old frame removes itself with null.
    if (site != nullptr && site_) {
        return E_UNEXPECTED;
    }
    if (site != nullptr) {
        site->AddRef();
    }
    site_ = ComPointer<IPropertyPageSite>::adopt(site);
    return S_OK;
}

HRESULT DocHtmlComPage::Activate(HWND parent, LPCRECT rectangle, BOOL /*modal*/) {
    if (rectangle == nullptr) {
        return E_POINTER;
    }
    if (window_.handle() != nullptr) {
        return E_UNEXPECTED;
    }
    return guarded([&] { return window_.create(parent) ? Move(rectangle) : E_OUTOFMEMORY; });
}

HRESULT DocHtmlComPage::Deactivate() {
    if (window_.handle() == nullptr) {
        return E_UNEXPECTED;
    }
    return guarded([&] {
        window_.destroy();
        return S_OK;
    });
}

HRESULT DocHtmlComPage::GetPageInfo(PROPPAGEINFO* info) {
    if (info == nullptr) {
        return E_POINTER;
    }
    return guarded([&] {
        *info = {};
        info->cb = sizeof(*info);
        info->pszTitle = copiedString(resource::pageTitle);
        info->pszDocString = copiedString(resource::pageDescription);
        info->size = dialogPixels(resource::pageDialog);
        return S_OK;
    });
}

HRESULT DocHtmlComPage::SetObjects(ULONG count, IUnknown** objects) {
    // The settings belong to the user, not to the objects that the frame shows.
    return count != 0 && objects == nullptr ? E_POINTER : S_OK;
}

HRESULT DocHtmlComPage::Show(UINT command) {
    if (window_.handle() == nullptr) {
        return E_UNEXPECTED;
    }
    ShowWindow(window_.handle(), static_cast<int>(command));
    if (command == SW_SHOW || command == SW_SHOWNORMAL) {
        SetFocus(GetDlgItem(window_.handle(), control::imagesDirectory));
    }
    return S_OK;
}

HRESULT DocHtmlComPage::Move(LPCRECT rectangle) {
    if (rectangle == nullptr) {
        return E_POINTER;
    }
    if (window_.handle() == nullptr) {
        return E_UNEXPECTED;
    }
    MoveWindow(window_.handle(), rectangle->left, rectangle->top,
               rectangle->right - rectangle->left, rectangle->bottom - rectangle->top, TRUE);
    return S_OK;
}

HRESULT DocHtmlComPage::IsPageDirty() {
    return page_.isDirty() ? S_OK : S_FALSE;
}

HRESULT DocHtmlComPage::Apply() {
    if (window_.handle() == nullptr) {
        return E_UNEXPECTED;
    }
    return guarded([&] { return page_.apply() ? S_OK : E_UNEXPECTED; });
}

HRESULT DocHtmlComPage::Help(LPCOLESTR /*helpDirectory*/) {
    return guarded([&] {
        page_.showHelp();
        return S_OK;
    });
}

HRESULT DocHtmlComPage::TranslateAccelerator(MSG* message) {
    if (message == nullptr) {
        return E_POINTER;
    }
    const bool isKey = message->message >= WM_KEYFIRST && message->message <= WM_KEYLAST;
    if (!isKey || window_.handle() == nullptr || leavesPage(*message)) {
        return S_FALSE;
    }
    return IsDialogMessageW(window_.handle(), message) != FALSE ? S_OK : S_FALSE;
}

bool DocHtmlComPage::leavesPage(const MSG& message) const {
    if (IsChild(window_.handle(), message.hwnd) == FALSE) {
        return true;
    }
    if (message.message != WM_KEYDOWN) {
        return false;
    }
    // These keys are for the frame's default button and its Cancel button, but a "..." button of
    // the page takes Return for itself.
    if (message.wParam == VK_ESCAPE) {
        return true;
    }
    if (message.wParam == VK_RETURN) {
        const PageControl* const row = findControl(GetDlgCtrlID(message.hwnd));
        return row == nullptr || row->kind != ControlKind::button;
    }
    if (message.wParam != VK_TAB) {
        return false;
    }
    const bool backwards = GetKeyState(VK_SHIFT) < 0;
    const HWND first = GetDlgItem(window_.handle(), control::imagesDirectory);
    const HWND last = GetDlgItem(window_.handle(), control::locate);
    return GetFocus() == (backwards ? first : last);
}

void DocHtmlComPage::notifySite(bool dirty) {
    if (site_) {
        constexpr DWORD clean = 0;
        site_->OnStatusChange(dirty ? DWORD{PROPPAGESTATUS_DIRTY} : clean);
    }
}

}  // namespace quillmark
