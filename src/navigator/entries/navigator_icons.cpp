#include "navigator/entries/navigator_icons.h"

#include <algorithm>

#include "foundation/ascii.h"
#include "page/file_copier.h"
#include "platform/files/sys_file.h"

namespace quillmark {

namespace {

/// Other names do not mean the same on every system.
bool isPlainName(std::string_view name) noexcept {
    return !name.empty() && std::ranges::all_of(name, [](char c) {
        return ascii::isLetter(c) || (c >= '0' && c <= '9') ||
               std::string_view("_-+.").find(c) != std::string_view::npos;
    });
}

/// The first file of that name; empty when there is none.
OrxString findIn(const NavigatorIcons::Sources& sources, std::string_view name,
                 const Trace& trace) {
    for (const OrxString& directory : sources) {
        OrxString file = SysFile::appendToDir(directory, name);
        if (!directory.isEmpty() && SysFile::exists(file, trace)) {
            return file;
        }
    }
    return {};
}

}  // namespace

NavigatorIcons::NavigatorIcons(const ContentsEntryList& entries, const Sources& sources,
                               const OrxString& directory, const Trace& trace) {
    for (const ContentsEntryView entry : entries) {
        add(entry.gif, sources, directory, trace);
        add(entry.stereoGif, sources, directory, trace);
    }
}

void NavigatorIcons::add(std::string_view name, const Sources& sources, const OrxString& directory,
                         const Trace& trace) {
    if (name.empty() || numbers_.contains(name)) {
        return;
    }
    std::uint32_t number = 0;
    const OrxString source = isPlainName(name) ? findIn(sources, name, trace) : OrxString();
    // These files are part of the output, so "DontCopy" does not concern them.
    if (!source.isEmpty() && FileCopier().copyToDir(source, directory, "", trace) != source) {
        names_.emplace_back(name);
        number = static_cast<std::uint32_t>(names_.size());
    }
    numbers_.emplace(name, number);
}

std::uint32_t NavigatorIcons::numberOf(std::string_view name) const {
    const auto found = numbers_.find(name);
    return found == numbers_.end() ? 0 : found->second;
}

}  // namespace quillmark
