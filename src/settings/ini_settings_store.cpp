#include <atomic>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <utility>

#include "platform/file_failure.h"
#include "platform/file_system.h"
#include "platform/read_whole.h"
#include "platform/sys_directory.h"
#include "platform/sys_file.h"
#include "platform/sys_text.h"
#include "platform/system_facts.h"
#include "settings/ini_text.h"
#include "settings/settings_store.h"

namespace quillmark {

namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

/// The name of a file in the same directory that no other process or thread uses.
OrxString temporaryNameFor(const OrxString& fileName) {
    static std::atomic<unsigned> counter{0};
    return fileName + ("." + std::to_string(system_facts::processId()) + "-" +
                       std::to_string(counter++) + ".tmp");
}

class IniSettingsStore final : public SettingsStore {
public:
    explicit IniSettingsStore(OrxString fileName) : fileName_(std::move(fileName)) {}

    [[nodiscard]] std::optional<OrxString> read(const OrxString& group,
                                                const OrxString& name) const override {
        const std::lock_guard lock(mutex_);
        refresh();
        const std::optional<std::string> value =
            ini_.value(SysText::toUtf8(group), SysText::toUtf8(name));
        return value ? std::optional(SysText::fromUtf8(*value)) : std::nullopt;
    }

    [[nodiscard]] bool write(const OrxString& group, const OrxString& name,
                             const OrxString& value) override {
        const std::lock_guard lock(mutex_);
        refresh();
        IniText changed = ini_;
        // A file that could not be read must not be replaced, since its content would be lost.
        const bool kept =
            state_ != State::unreadable &&
            changed.set(SysText::toUtf8(group), SysText::toUtf8(name), SysText::toUtf8(value)) &&
            save(changed);
        if (kept) {
            ini_ = std::move(changed);
        }
        return kept;
    }

    [[nodiscard]] OrxString problem() const override {
        const std::lock_guard lock(mutex_);
        refresh();
        if (state_ == State::unreadable) {
            return "Cannot read the settings file " + fileName_;
        }
        const std::optional<std::size_t> line = ini_.firstUnknownLine();
        if (!line) {
            return {};
        }
        return "Line " + std::to_string(*line) + " of the settings file " + fileName_ +
               " is neither a section nor a setting";
    }

private:
    enum class State { unknown, missing, read, unreadable };

    /// Reads the file again if it has changed.
    void refresh() const {
        FileSystem& files = FileSystem::current();
        FileFailure::forget();
        const std::optional<FileStamp> stamp = files.stamp(fileName_);
        // A file that cannot be looked up is not a missing one: what was read of it still counts.
        const bool unknown = !stamp && FileFailure::isNoted();
        if (state_ == State::read && (unknown || stamp == stamp_)) {
            return;
        }
        const std::optional<std::string> bytes = readWhole(fileName_);
        const bool something = unknown || stamp || files.directoryExists(fileName_);
        state_ = bytes ? State::read : something ? State::unreadable : State::missing;
        std::string_view text = bytes ? std::string_view(*bytes) : std::string_view();
        hasByteOrderMark_ = text.starts_with(byteOrderMark);
        text.remove_prefix(hasByteOrderMark_ ? byteOrderMark.size() : 0);
        ini_ = IniText(text);
        stamp_ = stamp;
    }

    [[nodiscard]] bool save(const IniText& ini) {
        FileSystem& files = FileSystem::current();
        const OrxString dir = SysFile::getDir(fileName_);
        if (!dir.isEmpty() && !SysDirectory::checkDirectoryAndCreate(dir)) {
            return false;
        }
        const OrxString temporary = temporaryNameFor(fileName_);
        const std::string text = (hasByteOrderMark_ ? std::string(byteOrderMark) : "") + ini.text();
        const std::string_view piece = text;
        if (SysFile::writeWhole(temporary, {&piece, 1}) != WriteResult::done ||
            !files.replaceFile(temporary, fileName_)) {
            files.deleteFile(temporary);
            return false;
        }
        stamp_ = files.stamp(fileName_);
        state_ = State::read;
        return true;
    }

    const OrxString fileName_;
    mutable std::mutex mutex_;
    mutable State state_ = State::unknown;
    mutable IniText ini_;
    mutable std::optional<FileStamp> stamp_;
    mutable bool hasByteOrderMark_ = false;
};

}  // namespace

std::shared_ptr<SettingsStore> makeIniSettingsStore(const OrxString& fileName) {
    return std::make_shared<IniSettingsStore>(fileName);
}

}  // namespace quillmark
