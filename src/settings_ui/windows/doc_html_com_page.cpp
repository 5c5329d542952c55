#include "settings_ui/windows/doc_html_com_page.h"

#include <algorithm>
#include <new>
#include <string>
#include <utility>

#include "settings_ui/windows/module_resources.h"
#include "settings_ui/windows/settings_page_factory.h"

namespace quillmark {

namespace {

/// A resource string as a caller of the component frees it; null for an empty one.
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

/// Runs what answers a call of a frame: nothing may be thrown out of the component.
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

DocHtmlComPage::DocHtmlComPage(IUnknown* outer, std::shared_ptr<void> lifetime)
    : inner_(*this),
      outer_(outer == nullptr ? &inner_ : outer),
      window_([this](int id, ControlEvent event) { page_.handle(id, event); }),
      host_([this] { return window_.handle(); }, [this](bool dirty) { tellSite(dirty); }),
      page_(window_, host_),
      lifetime_(std::move(lifetime)) {}

DocHtmlComPage::~DocHtmlComPage() {
    window_.destroy();
    if (site_ != nullptr) {
        site_->Release();
    }
}

HRESULT DocHtmlComPage::InnerUnknown::QueryInterface(REFIID iid, void** object) {
    if (object == nullptr) {
        return E_POINTER;
    }
    IUnknown* found = nullptr;
    if (IsEqualIID(iid, IID_IUnknown)) {
        found = this;
    } else if (IsEqualIID(iid, IID_IPropertyPage)) {
        found = static_cast<IPropertyPage*>(&page_);
    }
    *object = found;
    if (found == nullptr) {
        return E_NOINTERFACE;
    }
    found->AddRef();
    return S_OK;
}

ULONG DocHtmlComPage::InnerUnknown::Release() {
    const ULONG left = --count_;
    if (left == 0) {
        // A reference that is taken and let go of while the page goes must not end it twice.
        constexpr ULONG endingCount = 0x40000000;
        count_ = endingCount;
        delete &page_;
    }
    return left;
}

HRESULT DocHtmlComPage::QueryInterface(REFIID iid, void** object) {
    return outer_->QueryInterface(iid, object);
}

HRESULT DocHtmlComPage::SetPageSite(IPropertyPageSite* site) {
    // A page has one frame at a time; the old one takes itself back with null.
    if (site != nullptr && site_ != nullptr) {
        return E_UNEXPECTED;
    }
    if (site != nullptr) {
        site->AddRef();
    }
    if (IPropertyPageSite* const old = std::exchange(site_, site)) {
        old->Release();
    }
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
    // The settings are the user's: they belong to none of the objects that the frame is about.
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
    return IsDialogMessageA(window_.handle(), message) != FALSE ? S_OK : S_FALSE;
}

bool DocHtmlComPage::leavesPage(const MSG& message) const {
    if (IsChild(window_.handle(), message.hwnd) == FALSE) {
        return true;
    }
    if (message.message != WM_KEYDOWN) {
        return false;
    }
    // The frame's default button and its Cancel are for the frame to find.
    if (message.wParam == VK_RETURN || message.wParam == VK_ESCAPE) {
        return true;
    }
    if (message.wParam != VK_TAB) {
        return false;
    }
    const bool backwards = GetKeyState(VK_SHIFT) < 0;
    const HWND first = GetDlgItem(window_.handle(), control::imagesDirectory);
    const HWND last = GetDlgItem(window_.handle(), control::locate);
    return GetFocus() == (backwards ? first : last);
}

void DocHtmlComPage::tellSite(bool dirty) {
    if (site_ != nullptr) {
        constexpr DWORD clean = 0;
        site_->OnStatusChange(dirty ? DWORD{PROPPAGESTATUS_DIRTY} : clean);
    }
}

HRESULT createSettingsPage(IUnknown* outer, REFIID iid, void** object,
                           std::shared_ptr<void> lifetime) {
    if (object == nullptr) {
        return E_POINTER;
    }
    *object = nullptr;
    // An outer object must hold the inner unknown, or the identities would run into each other.
    if (outer != nullptr && !IsEqualIID(iid, IID_IUnknown)) {
        return CLASS_E_NOAGGREGATION;
    }
    return guarded([&] {
        IUnknown* const made = (new DocHtmlComPage(outer, std::move(lifetime)))->innerUnknown();
        const HRESULT result = made->QueryInterface(iid, object);
        made->Release();
        return result;
    });
}

}  // namespace quillmark
