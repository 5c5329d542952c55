#pragma once

#include <atomic>
#include <memory>

#include "platform/windows/windows_api.h"
#include "settings_ui/settings_page.h"
#include "settings_ui/windows/page_window.h"
#include "settings_ui/windows/windows_page_host.h"

// This needs the types of windows_api.h above it.
#include <ole2.h>
#include <olectl.h>

namespace quillmark {

/// The "HTML Settings" property page as a component: what a property frame does to a page, done
/// to the page's window and its logic. Apartment-threaded.
class DocHtmlComPage final : public IPropertyPage {
public:
    /// A new page, counted once for its maker through `innerUnknown`. `outer`, null for none, is
    /// not counted: it outlives the page.
    DocHtmlComPage(IUnknown* outer, std::shared_ptr<void> lifetime);
    DocHtmlComPage(const DocHtmlComPage&) = delete;
    DocHtmlComPage& operator=(const DocHtmlComPage&) = delete;

    /// The unknown that is the page's own whatever holds it.
    [[nodiscard]] IUnknown* innerUnknown() noexcept { return &inner_; }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override;
    ULONG STDMETHODCALLTYPE AddRef() override { return outer_->AddRef(); }
    ULONG STDMETHODCALLTYPE Release() override { return outer_->Release(); }

    HRESULT STDMETHODCALLTYPE SetPageSite(IPropertyPageSite* site) override;
    HRESULT STDMETHODCALLTYPE Activate(HWND parent, LPCRECT rectangle, BOOL modal) override;
    HRESULT STDMETHODCALLTYPE Deactivate() override;
    HRESULT STDMETHODCALLTYPE GetPageInfo(PROPPAGEINFO* info) override;
    HRESULT STDMETHODCALLTYPE SetObjects(ULONG count, IUnknown** objects) override;
    HRESULT STDMETHODCALLTYPE Show(UINT command) override;
    HRESULT STDMETHODCALLTYPE Move(LPCRECT rectangle) override;
    HRESULT STDMETHODCALLTYPE IsPageDirty() override;
    HRESULT STDMETHODCALLTYPE Apply() override;
    HRESULT STDMETHODCALLTYPE Help(LPCOLESTR helpDirectory) override;
    HRESULT STDMETHODCALLTYPE TranslateAccelerator(MSG* message) override;

private:
    class InnerUnknown final : public IUnknown {
    public:
        explicit InnerUnknown(DocHtmlComPage& page) noexcept : page_(page) {}
        HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override;
        ULONG STDMETHODCALLTYPE AddRef() override { return ++count_; }
        ULONG STDMETHODCALLTYPE Release() override;

    private:
        DocHtmlComPage& page_;
        std::atomic<ULONG> count_{1};
    };

    ~DocHtmlComPage();
    void tellSite(bool dirty);
    [[nodiscard]] bool leavesPage(const MSG& message) const;

    InnerUnknown inner_;
    IUnknown* outer_;
    IPropertyPageSite* site_ = nullptr;
    PageWindow window_;
    WindowsPageHost host_;
    SettingsPage page_;
    /// Let go of last of all.
    std::shared_ptr<void> lifetime_;
};

}  // namespace quillmark
