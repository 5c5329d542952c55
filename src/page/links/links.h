#pragma once

#include "foundation/orx_string.h"

/// Conversions from paths to links. They do not access the disk. What a browser would misread in a
/// path is written as the encoding in force requires (`TextEncoding::inLink`).
namespace quillmark::links {

/// Replaces every ":" by "|" and every "\" by "/".
[[nodiscard]] OrxString fromPath(OrxString path);
/// The link to a file in the same directory: the file part of its name.
[[nodiscard]] OrxString fromFilePart(const OrxString& fileName);

/// The link from directory `base` to `target`. An empty `base` stands for the default base
/// directory.
[[nodiscard]] OrxString relative(const OrxString& target, const OrxString& base);

/// The link from directory `base` to the file `fileName`: its directory made relative, then its
/// file part.
[[nodiscard]] OrxString relativeFile(const OrxString& fileName, const OrxString& base);

/// The default base directory of the process: the output directory of the document that was created
/// last.
[[nodiscard]] OrxString defaultBase();
/// `directory`, or the default base directory if that is empty.
[[nodiscard]] OrxString baseOrDefault(const OrxString& directory);
void setDefaultBase(const OrxString& directory);

}  // namespace quillmark::links
