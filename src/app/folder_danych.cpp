#include "app/folder_danych.h"

#include <system_error>

#include "core/error.h"
#include "core/paths.h"

namespace fs = std::filesystem;

namespace app {

namespace {
const char* const kTytul = "Folder danych";
}

bool jestFolderemDanych(const fs::path& folder) {
    return core::fileExists(core::resolvePath(folder, {"instalka.dat"}));
}

fs::path folderDemo(const fs::path& folderProgramu) {
    fs::path demo = (folderProgramu / ".." / "share" / "pensja" / "demo").lexically_normal();
    return jestFolderemDanych(demo) ? demo : fs::path();
}

void zalozZDemo(const fs::path& demo, const fs::path& cel) {
    std::error_code ec;
    if (fs::exists(cel, ec) && !(fs::is_directory(cel, ec) && fs::is_empty(cel, ec)))
        throw core::Error(core::err::PathFileAccess, "zalozZDemo",
                          "Folder " + cel.string() + " istnieje i nie jest pusty. Wskaż nowy lub pusty folder.");
    fs::create_directories(cel, ec);
    if (!ec) fs::copy(demo, cel, fs::copy_options::recursive, ec);
    if (ec)
        throw core::Error(core::err::PathFileAccess, "zalozZDemo",
                          "Nie można utworzyć folderu danych " + cel.string() + ": " + ec.message());
}

std::optional<fs::path> wybierzFolderDanych(core::Dialogs& ui, const fs::path& demo, const fs::path& domyslny) {
    using core::Answer;
    using core::Buttons;
    using core::Icon;
    std::string pytanie =
        "W folderze roboczym nie ma danych programu (brak pliku instalka.dat).\n\n"
        "Tak – utworzyć nowy folder danych z danymi przykładowymi,\n"
        "Nie – wskazać istniejący folder danych,\n"
        "Anuluj – zacząć w folderze roboczym.";
    if (demo.empty())
        pytanie = "W folderze roboczym nie ma danych programu (brak pliku instalka.dat).\n\n"
                  "Tak – wskazać istniejący folder danych,\n"
                  "Nie – zacząć w folderze roboczym.";
    for (;;) {
        Answer a = ui.msgBox(pytanie, demo.empty() ? Buttons::YesNo : Buttons::YesNoCancel, Icon::Question, kTytul);
        bool nowy = !demo.empty() && a == Answer::Yes;
        bool istniejacy = demo.empty() ? a == Answer::Yes : a == Answer::No;
        if (!nowy && !istniejacy) return std::nullopt;
        if (nowy) {
            auto cel = ui.inputBox("Nowy folder danych (zostanie utworzony):", kTytul, domyslny.string());
            if (!cel || cel->empty()) continue;
            try {
                zalozZDemo(demo, *cel);
                return fs::path(*cel);
            } catch (const core::Error& e) {
                ui.msgBox(e.Detail, Buttons::OK, Icon::Critical, kTytul);
                continue;
            }
        }
        auto folder = ui.folderBox("Wskaż folder danych programu", domyslny.parent_path().string());
        if (!folder || folder->empty()) continue;
        if (jestFolderemDanych(*folder)) return fs::path(*folder);
        ui.msgBox("W folderze " + *folder + " nie ma pliku instalka.dat: to nie jest folder danych programu.",
                  Buttons::OK, Icon::Exclamation, kTytul);
    }
}

}  // namespace app
