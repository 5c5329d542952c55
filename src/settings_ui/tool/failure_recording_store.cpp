#include "settings_ui/tool/failure_recording_store.h"

namespace quillmark {

bool FailureRecordingStore::write(const OrxString& group, const OrxString& name,
                                  const OrxString& value) {
    if (store_->write(group, name, value)) {
        return true;
    }
    failures_.push_back(group + "." + name);
    return false;
}

}  // namespace quillmark
