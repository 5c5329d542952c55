#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "blocks.h"

namespace quillmark::manual {

struct ArgumentText {
    std::string name;
    std::string text;
};

/// What a file of the example's document holds, among other things, byte for byte.
struct ExpectedOutput {
    std::string file;
    std::vector<std::string> lines;
};

struct Example {
    std::vector<std::string> calls;
    std::vector<ExpectedOutput> outputs;
};

struct OperationText {
    std::string name;
    std::string summary;
    std::string pairs;
    std::vector<ArgumentText> arguments;
    std::vector<Block> effect;
    std::vector<Block> writes;
    std::vector<Example> examples;
    std::vector<std::string> see;
};

/// Operations that are told together and whose pages lie in one directory, named by `id`.
struct OperationGroup {
    std::string id;
    std::string title;
    std::vector<Block> intro;
    std::vector<OperationText> operations;
};

/// A page of the manual that is not about one operation.
struct Chapter {
    std::string id;
    std::string title;
    int level = 1;
    /// Directory of its page; empty: the document's own.
    std::string directory;
    /// What the chapter is about, a word that the model knows.
    std::string element;
    std::vector<Block> body;
};

struct ManualData {
    std::vector<OperationGroup> groups;
    /// Chapters in front of the operations, among them, and behind.
    std::vector<Chapter> front;
    std::vector<Chapter> inside;
    std::vector<Chapter> reference;
};

/// Reads the descriptions below `directory`, and holds them against the table of operations: each
/// operation is described once, with the arguments that it has and in their order. Throws
/// `std::runtime_error` with file and line, or with the operation's name, when something is wrong.
[[nodiscard]] ManualData readManualData(const std::filesystem::path& directory);

}  // namespace quillmark::manual
