#pragma once

#include <memory>

#include "platform/files/confinement.h"
#include "platform/files/drive_table.h"
#include "platform/files/file_system.h"
#include "support/failing_file_system.h"
#include "support/memory_file_system.h"
#include "support/temp_dir.h"

namespace quillmark {

/// A file system under test, with a directory for the test.
class Subject {
public:
    virtual ~Subject() = default;
    virtual FileSystem& files() = 0;
    virtual OrxString directory() = 0;
};

class NativeSubject : public Subject {
public:
    FileSystem& files() override { return FileSystem::native(); }
    OrxString directory() override { return directory_.path(); }

private:
    TempDir directory_;
};

class MemorySubject : public Subject {
public:
    MemorySubject() { files_.makeDirectories("C:\\test"); }
    FileSystem& files() override { return files_; }
    OrxString directory() override { return "C:\\test"; }

private:
    MemoryFileSystem files_;
};

#ifndef _WIN32
/// Everything below the directory of the test is in reach. So is the directory where the test was
/// started, for reading.
class ConfinedSubject : public NativeSubject {
public:
    FileSystem& files() override { return *files_; }

private:
    [[nodiscard]] std::unique_ptr<FileSystem> make() {
        const std::string own = nativePath(directory());
        const std::string start = nativePath(FileSystem::native().currentDirectory());
        return makeConfinedFileSystem({{own}, {own, start}, {}});
    }

    std::unique_ptr<FileSystem> files_ = make();
};
#endif

/// As long as it is not told to fail, it must fulfil the contract as well.
class FailingSubject : public MemorySubject {
public:
    FileSystem& files() override { return failing_; }

private:
    FailingFileSystem failing_{MemorySubject::files()};
};

}  // namespace quillmark
