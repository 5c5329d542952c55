#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillmark {

/// A key that a library registers.
struct RegisteredKey {
    /// Relative to the classes root, with "\" between keys.
    std::string path;
    /// The key's default value.
    std::optional<std::string> value;
    std::map<std::string, std::string> namedValues;
    /// The key also belongs to others, so unregistering leaves it ("NoRemove").
    bool isShared = false;
    /// Registering first removes the key with all its subkeys ("ForceRemove").
    bool replacesOld = false;
};

/// Reads the keys of a registration script, parents before children. Texts are UTF-8. Each
/// "%MODULE%" in a value is replaced with `modulePath`.
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
/// A brace that opens or closes a block needs blanks around it. A quote inside quotes is written
/// twice. Throws an `OrxException` that names the place when the script is malformed.
[[nodiscard]] std::vector<RegisteredKey> readRegistrationScript(std::string_view script,
                                                                std::string_view modulePath);

}  // namespace quillmark
