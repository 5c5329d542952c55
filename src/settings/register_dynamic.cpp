#include "settings/register_dynamic.h"

namespace quillmark {

RegEntry RegisterDynamic::read(const OrxString& group, const OrxString& name,
                               const RegEntry& fallback, bool /*flag*/) const {
    return readStored(group, name, fallback);
}

bool RegisterDynamic::write(const OrxString& group, const OrxString& name, const RegEntry& entry,
                            bool /*flag*/) {
    return store()->write(group, name, entry.asString());
}

}  // namespace quillmark
