#include "settings_ui/tool/failure_recording_store.h"

#include "platform/files/file_failure.h"

namespace quillmark {

bool FailureRecordingStore::write(const OrxString& group, const OrxString& name,
                                  const OrxString& value) {
    FileFailure::forget();
    if (store_->write(group, name, value)) {
        return true;
    }
    failures_.push_back({group + "." + name, FileFailure::reason()});
    return false;
}

}  // namespace quillmark
