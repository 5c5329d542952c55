#include "settings_ui/windows/completed_frame.h"

// This needs the types of windows_api.h.
#include <prsht.h>

namespace quillmark {

namespace {

/// A layer between the frame and the page. It is also the page's site.
class CompletedPage final : public IPropertyPage, public IPropertyPageSite {
public:
    CompletedPage() {
        CoCreateInstance(settingsPageClass, nullptr, CLSCTX_INPROC_SERVER, IID_IPropertyPage,
                         reinterpret_cast<void**>(&page_));
    }
    CompletedPage(const CompletedPage&) = delete;
    CompletedPage& operator=(const CompletedPage&) = delete;
    [[nodiscard]] bool hasPage() const noexcept { return page_ != nullptr; }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
        *object = nullptr;
        if (IsEqualIID(iid, IID_IUnknown) || IsEqualIID(iid, IID_IPropertyPage)) {
            *object = static_cast<IPropertyPage*>(this);
        } else if (IsEqualIID(iid, IID_IPropertyPageSite)) {
            *object = static_cast<IPropertyPageSite*>(this);
        } else {
            return E_NOINTERFACE;
        }
        AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++count_; }
    ULONG STDMETHODCALLTYPE Release() override {
        const ULONG left = --count_;
        if (left == 0) {
            delete this;
        }
        return left;
    }

    HRESULT STDMETHODCALLTYPE SetPageSite(IPropertyPageSite* site) override {
        return page_->SetPageSite(site == nullptr ? nullptr : this);
    }
    HRESULT STDMETHODCALLTYPE Activate(HWND parent, LPCRECT rectangle, BOOL modal) override {
        sheetPage_ = parent;
        applying = this;
        previousProcedure = reinterpret_cast<DLGPROC>(SetWindowLongPtrW(
            parent, DWLP_DLGPROC, reinterpret_cast<LONG_PTR>(&sheetPageProcedure)));
        return page_->Activate(parent, rectangle, modal);
    }
    HRESULT STDMETHODCALLTYPE Deactivate() override {
        applying = nullptr;
        return page_->Deactivate();
    }
    HRESULT STDMETHODCALLTYPE GetPageInfo(PROPPAGEINFO* info) override {
        return page_->GetPageInfo(info);
    }
    HRESULT STDMETHODCALLTYPE SetObjects(ULONG count, IUnknown** objects) override {
        return page_->SetObjects(count, objects);
    }
    HRESULT STDMETHODCALLTYPE Show(UINT command) override { return page_->Show(command); }
    HRESULT STDMETHODCALLTYPE Move(LPCRECT rectangle) override { return page_->Move(rectangle); }
    HRESULT STDMETHODCALLTYPE IsPageDirty() override { return page_->IsPageDirty(); }
    HRESULT STDMETHODCALLTYPE Apply() override { return page_->Apply(); }
    HRESULT STDMETHODCALLTYPE Help(LPCOLESTR directory) override { return page_->Help(directory); }
    HRESULT STDMETHODCALLTYPE TranslateAccelerator(MSG* message) override {
        return page_->TranslateAccelerator(message);
    }

    HRESULT STDMETHODCALLTYPE OnStatusChange(DWORD /*flags*/) override {
        const bool dirty = page_->IsPageDirty() == S_OK;
        SendMessageA(GetParent(sheetPage_), dirty ? PSM_CHANGED : PSM_UNCHANGED,
                     reinterpret_cast<WPARAM>(sheetPage_), 0);
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetLocaleID(LCID* locale) override {
        *locale = GetUserDefaultLCID();
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetPageContainer(IUnknown** container) override {
        *container = nullptr;
        return E_NOTIMPL;
    }
    // The site's function of this name has the signature of the page's, and one body serves both.

private:
    ~CompletedPage() {
        if (page_ != nullptr) {
            page_->Release();
        }
    }

    static INT_PTR CALLBACK sheetPageProcedure(HWND window, UINT message, WPARAM wparam,
                                               LPARAM lparam) {
        if (message == WM_NOTIFY && applying != nullptr &&
            reinterpret_cast<const NMHDR*>(lparam)->code == static_cast<UINT>(PSN_APPLY)) {
            // A frame applies only dirty pages.
            const bool refused =
                applying->IsPageDirty() == S_OK && FAILED(applying->page_->Apply());
            SetWindowLongPtrW(window, DWLP_MSGRESULT,
                              refused ? PSNRET_INVALID_NOCHANGEPAGE : PSNRET_NOERROR);
            return TRUE;
        }
        return previousProcedure(window, message, wparam, lparam);
    }

    // A thread shows one frame at a time.
    static thread_local CompletedPage* applying;
    static thread_local DLGPROC previousProcedure;

    ULONG count_ = 1;
    IPropertyPage* page_ = nullptr;
    HWND sheetPage_ = nullptr;
};

thread_local CompletedPage* CompletedPage::applying = nullptr;
thread_local DLGPROC CompletedPage::previousProcedure = nullptr;

class Factory final : public IClassFactory {
public:
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
        const bool known = IsEqualIID(iid, IID_IUnknown) || IsEqualIID(iid, IID_IClassFactory);
        *object = known ? this : nullptr;
        return known ? S_OK : E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return 2; }
    ULONG STDMETHODCALLTYPE Release() override { return 1; }
    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* /*outer*/, REFIID iid,
                                             void** object) override {
        *object = nullptr;
        auto* const page = new CompletedPage;
        const HRESULT result =
            page->hasPage() ? page->QueryInterface(iid, object) : REGDB_E_CLASSNOTREG;
        page->Release();
        return result;
    }
    HRESULT STDMETHODCALLTYPE LockServer(BOOL /*lock*/) override { return S_OK; }
};

Factory factory;

}  // namespace

CompletedPageClass::CompletedPageClass() {
    CoRegisterClassObject(completedPageClass, &factory, CLSCTX_INPROC_SERVER, REGCLS_MULTIPLEUSE,
                          &registration_);
}

CompletedPageClass::~CompletedPageClass() {
    CoRevokeClassObject(registration_);
}

}  // namespace quillmark
