// The first start of an installed program: the working folder holds no installation record, so
// the operator is offered a new data folder made from the demonstration data, or a folder of
// their own. The start of the session then goes on in the folder chosen.
#pragma once
#include <filesystem>
#include <optional>

#include "core/dialogs.h"

namespace app {

// Whether the folder holds the installation record (in any letter case).
bool jestFolderemDanych(const std::filesystem::path& folder);

// The demonstration data shipped with the program: <prefix>/share/pensja/demo beside the
// folder of the executable; empty when the program runs without them (from the build folder).
std::filesystem::path folderDemo(const std::filesystem::path& folderProgramu);

// Copies the demonstration data into `cel`, which must not exist or be empty. Throws
// core::Error (75) with the reason in Polish otherwise.
void zalozZDemo(const std::filesystem::path& demo, const std::filesystem::path& cel);

// Asks the operator where the data are when the working folder holds none: a new folder from the
// demonstration data (proposed in `domyslny`), an existing data folder, or the working folder as
// it is. Returns the folder to start in, or nothing to start in the working folder.
std::optional<std::filesystem::path> wybierzFolderDanych(core::Dialogs& ui, const std::filesystem::path& demo,
                                                         const std::filesystem::path& domyslny);

}  // namespace app
