// Paths in the data tree. Folder and file names are spelt in several letter cases by the
// system (bazy/Bazy, SUMY/Sumy); the resolver finds an existing entry whatever its case.
#pragma once
#include <filesystem>
#include <initializer_list>
#include <string>
#include <string_view>

namespace core {

// Why `part`, a name taken from data (a payer's or a list's short name, a file name read from a
// record), cannot be one step of a path inside the data folder: a separator ("/" or "\\"),
// "..", a drive ("C:") or a control character would lead elsewhere. "" when it can.
std::string badPathPart(std::string_view part);
// Throws Error 52 (bad file name) with a clear reason when badPathPart finds one.
void checkPathPart(std::string_view part);

// `base` followed by `parts`: each part is the existing entry whose name matches it without
// regard to letter case (an exact match first), or the part as given when none exists.
// Every part is checked by checkPathPart first, so a name from data never leaves `base`.
std::filesystem::path resolvePath(const std::filesystem::path& base, std::initializer_list<std::string_view> parts);
// The same, creating every missing folder with the given spelling (all parts are folders).
std::filesystem::path ensureFolder(const std::filesystem::path& base, std::initializer_list<std::string_view> parts);

// "tak" or "nie": whether the file exists.
std::string PlikIstnieje(const std::filesystem::path& path);
bool fileExists(const std::filesystem::path& path);

}  // namespace core
