#include "core/paths.h"

#include "core/error.h"
#include "core/text.h"

namespace fs = std::filesystem;

namespace core {

std::string badPathPart(std::string_view part) {
    if (part == "..") return "nazwa \"..\" prowadzi poza folder danych";
    for (unsigned char c : part) {
        if (c == '/' || c == '\\') return "nazwa \"" + std::string(part) + "\" zawiera ukośnik";
        if (c == ':') return "nazwa \"" + std::string(part) + "\" wskazuje dysk";
        if (c < 0x20) return "nazwa zawiera znak sterujący";
    }
    return {};
}

void checkPathPart(std::string_view part) {
    std::string why = badPathPart(part);
    if (!why.empty())
        throw Error(err::BadFileName, std::string(part),
                    "Niedozwolona nazwa pliku lub folderu: " + why + ". Nazwy płatników, list i plików "
                    "nie mogą zawierać ukośników, \"..\" ani dysku - wszystko leży w folderze danych.");
}

static fs::path step(const fs::path& dir, std::string_view part) {
    checkPathPart(part);
    fs::path exact = dir / std::string(part);
    std::error_code ec;
    if (fs::exists(exact, ec)) return exact;
    if (fs::is_directory(dir, ec)) {
        const std::string want = UCase(part);
        for (const auto& e : fs::directory_iterator(dir, ec)) {
            if (UCase(e.path().filename().string()) == want) return e.path();
        }
    }
    return exact;
}

fs::path resolvePath(const fs::path& base, std::initializer_list<std::string_view> parts) {
    fs::path p = base;
    for (std::string_view part : parts) p = step(p, part);
    return p;
}

fs::path ensureFolder(const fs::path& base, std::initializer_list<std::string_view> parts) {
    fs::path p = base;
    for (std::string_view part : parts) {
        p = step(p, part);
        std::error_code ec;
        if (!fs::is_directory(p, ec)) {
            fs::create_directory(p, ec);
            if (ec) throw Error(err::PathFileAccess, p.string(), "nie można założyć folderu " + p.string() + " (" + ec.message() + ")");
        }
    }
    return p;
}

bool fileExists(const fs::path& path) {
    std::error_code ec;
    return fs::is_regular_file(path, ec);
}

std::string PlikIstnieje(const fs::path& path) { return fileExists(path) ? "tak" : "nie"; }

}  // namespace core
