#include "contents/tree/tree_data_file.h"

#include <algorithm>
#include <cstddef>
#include <memory>
#include <new>
#include <span>
#include <string>
#include <string_view>

#include "contents/entries/indent_budget.h"
#include "contents/tree/tree_text.h"
#include "foundation/orx_exception.h"
#include "platform/files/file_failure.h"
#include "platform/files/file_system.h"
#include "platform/line_end.h"

namespace quillmark {

namespace {

constexpr std::string_view indentUnit = "   ";
constexpr std::size_t bufferSize = std::size_t{64} * 1024;

/// Streams the tree into one file through one buffer.
class TreeWriter {
public:
    TreeWriter(const OrxString& path, bool showIcons)
        : path_(path), showIcons_(showIcons), buffer_("(TREE") {
        // The file is not touched if there is no memory for the usual tree.
        buffer_.reserve(bufferSize + bufferSize / 4);
        FileFailure::forget();
        file_ = FileSystem::current().openForReplacing(path);
        if (file_ == nullptr) {
            OrxException::raise("Error opening file: " + path_);
        }
    }

    void add(const ContentsEntryView& entry) {
        const std::size_t level = correctedLevel(entry.level);
        if (level <= previous_) {
            buffer_.append(previous_ - level + 1, ')');
        }
        buffer_.append(lineEnd_);
        appendNode(entry, level);
        previous_ = level;
        if (buffer_.size() >= bufferSize) {
            flush();
        }
    }

    void finish() {
        if (previous_ == 0) {
            buffer_.append(lineEnd_);
        }
        buffer_.append(previous_ + 1, ')').append(lineEnd_);
        flush();
        if (!file_->close()) {
            OrxException::raise("Error writing to file: " + path_);
        }
    }

private:
    /// From 1 to one deeper than the previous node. The first node always gets level 1.
    [[nodiscard]] std::size_t correctedLevel(std::int32_t level) const {
        return level < 1 ? 1 : std::min(static_cast<std::size_t>(level), previous_ + 1);
    }

    void appendNode(const ContentsEntryView& entry, std::size_t level) {
        buffer_.append(budget_.take(level, indentUnit.size()) * indentUnit.size(), ' ');
        buffer_.append("(NODE \"");
        const std::size_t textStart = buffer_.size();
        appendTreeText(buffer_, entry.text);
        buffer_.append("\" ");
        appendField(entry.href);
        if (showIcons_) {
            appendIcon(entry.gif);
            appendIcon(entry.stereoGif);
        }
        endLinesFrom(textStart);
    }

    void appendField(std::string_view value) { buffer_.append("\"").append(value).append("\" "); }

    void appendIcon(std::string_view name) {
        if (!name.empty()) {
            appendField(name);
        }
    }

    /// Replaces the line feeds that are left in a text by the line end of the file.
    void endLinesFrom(std::size_t start) {
        if (lineEnd_ != "\n" && buffer_.find('\n', start) != std::string::npos) {
            OrxString node(std::string_view(buffer_).substr(start));
            node.replaceStr("\n", lineEnd_);
            buffer_.replace(start, std::string::npos, node.str());
        }
    }

    void flush() {
        const std::string_view piece = buffer_;
        if (!file_->write(std::span(&piece, 1))) {
            OrxException::raise("Error writing to file: " + path_);
        }
        buffer_.clear();
    }

    OrxString path_;
    bool showIcons_;
    std::unique_ptr<OutputFile> file_;
    std::string_view lineEnd_ = systemLineEnd();
    std::string buffer_;
    /// The level of the previous node; 0 before the first.
    std::size_t previous_ = 0;
    IndentBudget budget_;
};

}  // namespace

void writeTreeDataFile(const OrxString& path, const ContentsEntryList& entries, bool showIcons) {
    try {
        TreeWriter writer(path, showIcons);
        for (const ContentsEntryView entry : entries) {
            writer.add(entry);
        }
        writer.finish();
    } catch (const std::bad_alloc&) {
        // Better no tree than half of one.
        FileSystem::current().deleteFile(path);
        throw;
    }
}

}  // namespace quillmark
