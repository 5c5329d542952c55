#include "contents/entries/entry_icons.h"

#include <algorithm>
#include <initializer_list>

#include "contents/entries/mm_info.h"
#include "host/quillmark_mode.h"

namespace quillmark {

namespace {

constexpr const char* noneIcon = "__None.gif";
constexpr const char* collectionIcon = "__Collection.gif";

bool isOneOf(const OrxString& name, std::initializer_list<const char*> names) {
    return std::any_of(names.begin(), names.end(),
                       [&](const char* candidate) { return name == candidate; });
}

OrxString attribute(const MMInfo& info, const char* name) {
    return info.getAttrAsString(name, info.getObject());
}

/// The attribute that distinguishes icons within a metaclass; empty for the other metaclasses.
OrxString detailOf(const MMInfo& info, const OrxString& metaclass) {
    if (isOneOf(metaclass, {"Class", "Diagram", "TaggedValue"})) {
        return attribute(info, "kind");
    }
    if (isOneOf(metaclass, {"Operation", "Attribute"})) {
        return attribute(info, "visibility");
    }
    return {};
}

/// Icons by the element's metaclass.
EntryIcons iconsByMetaclass(const MMInfo& info) {
    EntryIcons icons{noneIcon, {}};
    const OrxString metaclass = info.className();
    if (metaclass.isEmpty()) {
        return icons;
    }
    const OrxString detail = detailOf(info, metaclass);
    icons.gif = detail.isEmpty() ? metaclass + ".gif" : metaclass + "_" + detail + ".gif";
    const OrxString userDefined = attribute(info, "userDefinedMetaClass");
    if (!userDefined.isEmpty() && userDefined != metaclass) {
        icons.stereoGif = userDefined + ".gif";
    }
    return icons;
}

/// Icons by the element's own attributes.
EntryIcons iconsByAttributes(const MMInfo& info) {
    EntryIcons icons{noneIcon, {}};
    const OrxString metaClass = attribute(info, "metaClass");
    OrxString stereotype = attribute(info, "stereotype");
    if (metaClass.isEmpty()) {
        return icons;
    }
    icons.gif = metaClass + ".gif";
    if (!stereotype.isEmpty()) {
        icons.stereoGif = metaClass + "+" + stereotype.toLower() + ".gif";
    }
    return icons;
}

}  // namespace

EntryIcons entryIconsOf(std::uint64_t handle) {
    if (handle == noElementHandle) {
        return {noneIcon, {}};
    }
    if (handle == collectionHandle) {
        return {collectionIcon, {}};
    }
    const MMInfo info(handle);
    return CQuillmarkMode::GetSchemaType() == CQuillmarkMode::secondRuleSet
               ? iconsByAttributes(info)
               : iconsByMetaclass(info);
}

}  // namespace quillmark
