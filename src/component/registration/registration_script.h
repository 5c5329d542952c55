#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillmark {

/// One key that a library registers.
struct RegisteredKey {
    /// From the classes root, "\" between keys.
    std::string path;
    /// The key's default value.
    std::optional<std::string> value;
    std::map<std::string, std::string> namedValues;
    /// Not the library's alone: stays when the others are removed ("NoRemove").
    bool isShared = false;
    /// What an earlier registration left below it goes first ("ForceRemove").
    bool replacesOld = false;
};

/// Reads a registration script into the table of keys that registers and unregisters a class,
/// parents before children. Texts are UTF-8; each "%MODULE%" in a value becomes `modulePath`.
///
///     HKCR
///     {
///         NoRemove CLSID
///         {
///             ForceRemove {474B...} = s 'A class'
///             {
///                 InprocServer32 = s '%MODULE%'
///                 {
///                     val ThreadingModel = s 'Apartment'
///                 }
///             }
///         }
///     }
///
/// A brace that opens or closes a block stands alone between blanks; a quote inside quotes is
/// written twice. A script that does not read throws `OrxException` with the place.
[[nodiscard]] std::vector<RegisteredKey> readRegistrationScript(std::string_view script,
                                                                std::string_view modulePath);

}  // namespace quillmark
