#include <gmock/gmock.h>

#include <memory>
#include <string>
#include <vector>

#include "settings_ui/page_table.h"
#include "settings_ui/windows/completed_frame.h"
#include "settings_ui/windows/frame_driver.h"

namespace quillmark {

namespace {

/// A page from the registered class, below a plain window.
class PageObjectTest : public testing::Test {
protected:
    PageObjectTest() {
        OleInitialize(nullptr);
        CoCreateInstance(settingsPageClass, nullptr, CLSCTX_INPROC_SERVER, IID_IPropertyPage,
                         reinterpret_cast<void**>(&page_));
        parent_ = makeParent();
    }
    ~PageObjectTest() override {
        if (page_ != nullptr) {
            page_->Release();
        }
        DestroyWindow(parent_);
        OleUninitialize();
    }
    void SetUp() override { ASSERT_NE(page_, nullptr); }

    static HWND makeParent() {
        return CreateWindowA("Static", "", WS_OVERLAPPEDWINDOW, 0, 0, 600, 600, nullptr, nullptr,
                             nullptr, nullptr);
    }
    [[nodiscard]] SIZE pageSize() const {
        PROPPAGEINFO info{};
        page_->GetPageInfo(&info);
        CoTaskMemFree(info.pszTitle);
        CoTaskMemFree(info.pszDocString);
        return info.size;
    }
    [[nodiscard]] HWND activate() const {
        const SIZE size = pageSize();
        const RECT place{0, 0, size.cx, size.cy};
        EXPECT_EQ(page_->Activate(parent_, &place, FALSE), S_OK);
        return GetWindow(parent_, GW_CHILD);
    }

    IPropertyPage* page_ = nullptr;
    HWND parent_ = nullptr;
};

TEST_F(PageObjectTest, ReportsItsTitleDescriptionAndSizeButNoHelpFile) {
    PROPPAGEINFO info{};
    EXPECT_EQ(page_->GetPageInfo(&info), S_OK);
    EXPECT_EQ(info.cb, sizeof(info));
    EXPECT_EQ(std::wstring(info.pszTitle), L"&HTML");
    EXPECT_EQ(std::wstring(info.pszDocString), L"HTML Settings");
    EXPECT_EQ(info.pszHelpFile, nullptr);
    EXPECT_EQ(info.dwHelpContext, 0U);
    CoTaskMemFree(info.pszTitle);
    CoTaskMemFree(info.pszDocString);
    EXPECT_EQ(page_->GetPageInfo(nullptr), E_POINTER);
}

TEST_F(PageObjectTest, ItsSizeIsTheTemplatesInPixels) {
    const HWND window = activate();
    RECT units{0, 0, 235, 244};
    MapDialogRect(window, &units);
    const SIZE size = pageSize();
    EXPECT_EQ(size.cx, units.right);
    EXPECT_EQ(size.cy, units.bottom);
}

TEST_F(PageObjectTest, ItsWindowContainsTheControlsOfTheTableInOrder) {
    const HWND window = activate();
    HWND child = GetWindow(window, GW_CHILD);
    for (const PageControl& row : pageControls()) {
        if (row.kind == ControlKind::command) {
            continue;
        }
        ASSERT_NE(child, nullptr);
        const LONG style = GetWindowLongA(child, GWL_STYLE);
        if (row.id != control::none) {
            EXPECT_EQ(GetDlgCtrlID(child), row.id);
        }
        EXPECT_EQ(windowText(child), row.text) << row.id;
        EXPECT_EQ((style & WS_VISIBLE) == 0, row.hidden) << row.id;
        EXPECT_EQ((style & WS_DISABLED) != 0, row.hidden) << row.id;
        child = GetWindow(child, GW_HWNDNEXT);
    }
    EXPECT_EQ(child, nullptr);
}

struct Placed {
    RECT place;
    bool isGroup;
    std::string name;
};

std::vector<Placed> visibleControls(HWND window) {
    std::vector<Placed> placed;
    for (HWND child = GetWindow(window, GW_CHILD); child != nullptr;
         child = GetWindow(child, GW_HWNDNEXT)) {
        const LONG style = GetWindowLongA(child, GWL_STYLE);
        // The up-down control is inside its buddy's frame.
        if ((style & WS_VISIBLE) == 0 || GetDlgCtrlID(child) == control::headingLevelSpin) {
            continue;
        }
        RECT place{};
        GetWindowRect(child, &place);
        MapWindowPoints(nullptr, window, reinterpret_cast<POINT*>(&place), 2);
        char className[16]{};
        GetClassNameA(child, className, sizeof className);
        const bool isGroup =
            std::string(className) == "Button" && (style & BS_TYPEMASK) == BS_GROUPBOX;
        placed.push_back({place, isGroup, windowText(child)});
    }
    return placed;
}

TEST_F(PageObjectTest, ItsControlsAreInsideTheWindowAndNoTwoOverlap) {
    const HWND window = activate();
    RECT inside{};
    GetClientRect(window, &inside);
    const std::vector<Placed> all = visibleControls(window);
    for (const Placed& one : all) {
        RECT common{};
        IntersectRect(&common, &one.place, &inside);
        EXPECT_TRUE(EqualRect(&common, &one.place)) << one.name;
        for (const Placed& other : all) {
            if (&one == &other || one.isGroup || other.isGroup) {
                continue;
            }
            EXPECT_FALSE(IntersectRect(&common, &one.place, &other.place))
                << one.name << " / " << other.name;
        }
    }
}

TEST_F(PageObjectTest, ItsTextsFitTheirControls) {
    const HWND window = activate();
    const HDC screen = GetDC(window);
    SelectObject(screen, reinterpret_cast<HGDIOBJ>(SendMessageA(window, WM_GETFONT, 0, 0)));
    constexpr int markWidth = 18;
    for (const PageControl& row : pageControls()) {
        const HWND child = GetDlgItem(window, row.id);
        if (row.kind != ControlKind::checkBox && row.kind != ControlKind::button) {
            continue;
        }
        std::string text = row.text;
        std::erase(text, '&');
        SIZE extent{};
        GetTextExtentPoint32A(screen, text.c_str(), static_cast<int>(text.size()), &extent);
        RECT place{};
        GetClientRect(child, &place);
        const int mark = row.kind == ControlKind::checkBox ? markWidth : 0;
        EXPECT_LE(extent.cx + mark, place.right) << row.text;
        EXPECT_LE(extent.cy, place.bottom + 4) << row.text;
    }
    ReleaseDC(window, screen);
}

TEST_F(PageObjectTest, IsShownMovedHiddenAndDestroyed) {
    const HWND window = activate();
    EXPECT_EQ(page_->Show(SW_SHOWNA), S_OK);
    EXPECT_NE(GetWindowLongA(window, GWL_STYLE) & WS_VISIBLE, 0);
    const RECT place{5, 6, 105, 206};
    EXPECT_EQ(page_->Move(&place), S_OK);
    RECT now{};
    GetWindowRect(window, &now);
    MapWindowPoints(nullptr, parent_, reinterpret_cast<POINT*>(&now), 2);
    EXPECT_TRUE(EqualRect(&now, &place));
    EXPECT_EQ(page_->Show(SW_HIDE), S_OK);
    EXPECT_EQ(GetWindowLongA(window, GWL_STYLE) & WS_VISIBLE, 0);
    EXPECT_EQ(page_->Deactivate(), S_OK);
    EXPECT_FALSE(IsWindow(window));
}

TEST_F(PageObjectTest, ASecondWindowShowsTheValuesOfTheFirst) {
    HWND window = activate();
    SetDlgItemTextA(window, 5205, "mine.css");
    CheckDlgButton(window, 5219, BST_CHECKED);
    EXPECT_EQ(page_->IsPageDirty(), S_OK);
    EXPECT_EQ(page_->Deactivate(), S_OK);
    EXPECT_EQ(page_->IsPageDirty(), S_OK);
    window = activate();
    EXPECT_EQ(windowText(GetDlgItem(window, 5205)), "mine.css");
    EXPECT_EQ(IsDlgButtonChecked(window, 5219), static_cast<UINT>(BST_CHECKED));
}

TEST_F(PageObjectTest, IsDestroyedWithItsParentAndKeepsItsValuesForAnother) {
    HWND window = activate();
    SetDlgItemTextA(window, 5205, "mine.css");
    CheckDlgButton(window, 5219, BST_CHECKED);
    DestroyWindow(parent_);
    ASSERT_FALSE(IsWindow(window));
    EXPECT_EQ(page_->Show(SW_SHOW), E_UNEXPECTED);
    EXPECT_EQ(page_->Apply(), E_UNEXPECTED);
    EXPECT_EQ(page_->Deactivate(), E_UNEXPECTED);
    EXPECT_EQ(page_->IsPageDirty(), S_OK);
    parent_ = makeParent();
    window = activate();
    EXPECT_EQ(windowText(GetDlgItem(window, 5205)), "mine.css");
    EXPECT_EQ(IsDlgButtonChecked(window, 5219), static_cast<UINT>(BST_CHECKED));
    EXPECT_EQ(page_->Deactivate(), S_OK);
}

TEST_F(PageObjectTest, IsNotDirtyBeforeAnyEdit) {
    EXPECT_EQ(page_->IsPageDirty(), S_FALSE);
    const HWND window = activate();
    EXPECT_EQ(page_->IsPageDirty(), S_FALSE);
    SetDlgItemTextA(window, 5211, "papers");
    EXPECT_EQ(page_->IsPageDirty(), S_FALSE);
}

TEST_F(PageObjectTest, RefusesWhatNeedsAWindowWhileThereIsNone) {
    const RECT place{};
    EXPECT_EQ(page_->Deactivate(), E_UNEXPECTED);
    EXPECT_EQ(page_->Show(SW_SHOW), E_UNEXPECTED);
    EXPECT_EQ(page_->Move(&place), E_UNEXPECTED);
    EXPECT_EQ(page_->Apply(), E_UNEXPECTED);
    EXPECT_EQ(page_->Activate(parent_, nullptr, FALSE), E_POINTER);
    EXPECT_EQ(page_->Move(nullptr), E_POINTER);
    EXPECT_EQ(page_->TranslateAccelerator(nullptr), E_POINTER);
    EXPECT_EQ(page_->SetObjects(1, nullptr), E_POINTER);
    EXPECT_EQ(page_->SetObjects(0, nullptr), S_OK);
}

TEST_F(PageObjectTest, ReturnPressesItsButtonsInAHostsOwnDialog) {
    ShowWindow(parent_, SW_SHOW);
    const HWND window = activate();
    EXPECT_EQ(page_->Show(SW_SHOWNA), S_OK);
    for (const int id : {5602, 5212, 5206, 5216}) {
        const HWND button = GetDlgItem(window, id);
        SetFocus(button);
        MSG key{};
        key.hwnd = button;
        key.message = WM_KEYDOWN;
        key.wParam = VK_RETURN;
        key.lParam = 1;
        MSG click{};
        EXPECT_EQ(page_->TranslateAccelerator(&key), S_OK);
        EXPECT_TRUE(PeekMessageA(&click, button, BM_CLICK, BM_CLICK, PM_REMOVE)) << id;
        // A host need not ask the page first.
        EXPECT_TRUE(IsDialogMessageA(parent_, &key));
        EXPECT_TRUE(PeekMessageA(&click, button, BM_CLICK, BM_CLICK, PM_REMOVE)) << id;
    }
}

TEST_F(PageObjectTest, ReturnInABoxIsForTheHost) {
    const HWND window = activate();
    MSG key{};
    key.hwnd = GetDlgItem(window, 5601);
    key.message = WM_KEYDOWN;
    key.wParam = VK_RETURN;
    EXPECT_EQ(page_->TranslateAccelerator(&key), S_FALSE);
}

TEST_F(PageObjectTest, IsNotActivatedTwice) {
    static_cast<void>(activate());
    const RECT place{};
    EXPECT_EQ(page_->Activate(parent_, &place, FALSE), E_UNEXPECTED);
}

/// An outer object that counts its calls.
class Outer final : public IUnknown {
public:
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
        if (IsEqualIID(iid, IID_IUnknown)) {
            *object = this;
            AddRef();
            return S_OK;
        }
        return inner->QueryInterface(iid, object);
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++count; }
    ULONG STDMETHODCALLTYPE Release() override { return --count; }

    IUnknown* inner = nullptr;
    ULONG count = 1;
};

TEST_F(PageObjectTest, InsideAnOuterObjectItHasTheOuterIdentityAndLifetime) {
    Outer outer;
    ASSERT_EQ(CoCreateInstance(settingsPageClass, &outer, CLSCTX_INPROC_SERVER, IID_IUnknown,
                               reinterpret_cast<void**>(&outer.inner)),
              S_OK);
    IPropertyPage* page = nullptr;
    ASSERT_EQ(outer.QueryInterface(IID_IPropertyPage, reinterpret_cast<void**>(&page)), S_OK);
    EXPECT_EQ(outer.count, 2U);
    IUnknown* identity = nullptr;
    EXPECT_EQ(page->QueryInterface(IID_IUnknown, reinterpret_cast<void**>(&identity)), S_OK);
    EXPECT_EQ(identity, &outer);
    identity->Release();
    page->Release();
    EXPECT_EQ(outer.count, 1U);
    outer.inner->Release();
}

TEST_F(PageObjectTest, AnOuterObjectMustAskForTheUnknown) {
    Outer outer;
    void* object = &outer;
    EXPECT_EQ(CoCreateInstance(settingsPageClass, &outer, CLSCTX_INPROC_SERVER, IID_IPropertyPage,
                               &object),
              CLASS_E_NOAGGREGATION);
    EXPECT_EQ(object, nullptr);
}

TEST_F(PageObjectTest, OffersThePropertyPageAndNoOtherInterface) {
    void* object = &object;
    EXPECT_EQ(page_->QueryInterface(IID_IDispatch, &object), E_NOINTERFACE);
    EXPECT_EQ(object, nullptr);
}

}  // namespace

}  // namespace quillmark
