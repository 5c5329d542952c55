#include "component/object/page_object.h"

#include <memory>

#include "component/object/boundary.h"
#include "component/object/module_state.h"
#include "settings_ui/windows/settings_page_factory.h"

namespace quillmark {

HRESULT makePageObject(IUnknown* outer, REFIID iid, void** object) noexcept {
    return runGuarded(
        [&] { return createSettingsPage(outer, iid, object, std::make_shared<LiveObject>()); });
}

}  // namespace quillmark
