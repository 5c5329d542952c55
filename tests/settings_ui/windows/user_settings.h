#pragma once

namespace quillmark {

/// Removes all of the user's settings from the registry.
void removeUserSettings();

}  // namespace quillmark
