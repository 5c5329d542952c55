#pragma once

#include "component/object/aggregable_object.h"
#include "settings_ui/settings_page.h"
#include "settings_ui/windows/page_window.h"
#include "settings_ui/windows/windows_page_host.h"

// This needs the types that the headers above include.
#include <olectl.h>

namespace quillmark {

/// The class HtmlComPage: passes the calls of a property frame on to the window and the logic of
/// the "HTML Settings" page. Only the thread that created it may call it. It lets no exception
/// through. The module must contain dialog template 5106 and the strings 5102 and 5104.
// NOLINTNEXTLINE(cppcoreguidelines-virtual-class-destructor): its last release deletes it.
class DocHtmlComPage final : public AggregableObject<IPropertyPage> {
public:
    /// Creates a page, aggregated into `outer` unless that is null, and returns the requested
    /// interface in `object`.
    static HRESULT make(IUnknown* outer, REFIID iid, void** object) noexcept;

    explicit DocHtmlComPage(IUnknown* outer);

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

protected:
    ~DocHtmlComPage() override;
    [[nodiscard]] IUnknown* findInterface(REFIID iid) noexcept override;

private:
    void notifySite(bool dirty);
    [[nodiscard]] bool leavesPage(const MSG& message) const;

    ComPointer<IPropertyPageSite> site_;
    PageWindow window_;
    WindowsPageHost host_;
    SettingsPage page_;
};

}  // namespace quillmark
