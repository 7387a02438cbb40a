// Paths in the data tree. Folder and file names are spelt in several letter cases by the
// system (bazy/Bazy, SUMY/Sumy); the resolver finds an existing entry whatever its case.
#pragma once
#include <filesystem>
#include <initializer_list>
#include <string>
#include <string_view>

namespace core {

// `base` followed by `parts`: each part is the existing entry whose name matches it without
// regard to letter case (an exact match first), or the part as given when none exists.
std::filesystem::path resolvePath(const std::filesystem::path& base, std::initializer_list<std::string_view> parts);
// The same, creating every missing folder with the given spelling (all parts are folders).
std::filesystem::path ensureFolder(const std::filesystem::path& base, std::initializer_list<std::string_view> parts);

// "tak" or "nie": whether the file exists.
std::string PlikIstnieje(const std::filesystem::path& path);
bool fileExists(const std::filesystem::path& path);

}  // namespace core
