#pragma once

#include "replay/services/host_services.h"
#include "replay/tool/option_files.h"
#include "replay/tool/options.h"

namespace quillmark::replay {

/// The files that a confined run may use. It writes below the directory of the output and to the
/// log that the user named. It reads below the directories that the user named with --allow-read or
/// in the settings, and the files that are named there. Creates the directory of the output. Throws
/// `BadInput` for a directory that is missing. The caller sets who hears of refusals.
[[nodiscard]] FilesInReach filesInReach(const Options& options, const OptionFiles& files,
                                        const SettingsStore& settings);

}  // namespace quillmark::replay
