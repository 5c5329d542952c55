#pragma once

#include <memory>

#include "platform/windows/windows_api.h"

// This needs the types of windows_api.h above it.
#include <ole2.h>

namespace quillmark {

/// Makes a `DocHtmlComPage`, the property page of class HtmlComPage, alone or (with `outer`)
/// inside an outer object, which must ask for `IUnknown`. `lifetime` is anything that shall live
/// exactly as long as the object does: the module's count of live objects, say.
///
///     createSettingsPage(nullptr, IID_IPropertyPage, object, std::make_shared<LiveObject>());
///
/// Returns S_OK, E_POINTER, CLASS_E_NOAGGREGATION (`outer` and another interface asked for),
/// E_NOINTERFACE or E_OUTOFMEMORY; `*object` is null on every failure. The module that this is
/// linked into must hold dialog template 5106 and the strings 5102 and 5104.
[[nodiscard]] HRESULT createSettingsPage(IUnknown* outer, REFIID iid, void** object,
                                         std::shared_ptr<void> lifetime = nullptr);

}  // namespace quillmark
