#pragma once

#include "foundation/orx_string.h"

/// The way from paths to links. All of it is text work; nothing is looked up on the disk.
namespace quillmark::links {

/// Every ":" becomes "|" and every "\" becomes "/".
[[nodiscard]] OrxString fromPath(OrxString path);

/// The link from directory `base` to `target`. An empty `base` stands for the default base
/// directory.
[[nodiscard]] OrxString relative(const OrxString& target, const OrxString& base);

/// The link from directory `base` to the file `fileName`: its directory made relative, then its
/// file part.
[[nodiscard]] OrxString relativeFile(const OrxString& fileName, const OrxString& base);

/// The directory that links count from when they are given none: the output directory of the
/// document created last, in the whole process.
[[nodiscard]] OrxString defaultBase();
/// `directory`, or the default base directory when that is empty.
[[nodiscard]] OrxString baseOrDefault(const OrxString& directory);
void setDefaultBase(const OrxString& directory);

}  // namespace quillmark::links
