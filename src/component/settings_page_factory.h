#pragma once

/// The factory of the class HtmlComPage; Windows only.
#include "settings_ui/windows/settings_page_factory.h"
