#include <iostream>

#include "cli/cli.h"
#include "core/commitstream.h"
#include "core/error.h"
#include "printing/pdf.h"

namespace cli {

TextSpool::TextSpool() : plikTymczasowy(std::tmpfile()) {
    if (!plikTymczasowy) throw core::Error(core::err::PathFileAccess, "wydruk", "nie można utworzyć pliku tymczasowego wydruku");
}

TextSpool::~TextSpool() { std::fclose(plikTymczasowy); }

void TextSpool::beginPage() {
    if (!pierwszaStrona) std::fputc('\f', plikTymczasowy);
    pierwszaStrona = false;
}

void TextSpool::line(const core::PrintLine& l) {
    if (std::fwrite(l.text.data(), 1, l.text.size(), plikTymczasowy) != l.text.size() || std::fputc('\n', plikTymczasowy) == EOF)
        throw core::Error(core::err::PathFileAccess, "wydruk", "błąd zapisu pliku tymczasowego wydruku");
}

void TextSpool::copy(const std::function<void(std::string_view)>& out) {
    if (std::fflush(plikTymczasowy) != 0 || std::fseek(plikTymczasowy, 0, SEEK_SET) != 0)
        throw core::Error(core::err::PathFileAccess, "wydruk", "błąd odczytu pliku tymczasowego wydruku");
    char buf[1 << 16];
    for (std::size_t n; (n = std::fread(buf, 1, sizeof buf, plikTymczasowy)) > 0;) out(std::string_view(buf, n));
}

void Context::takePrintOptions() {
    std::vector<std::string> rest;
    for (std::size_t i = 0; i < args.size(); ++i) {
        if (args[i] == "--out" || args[i] == "--pdf") {
            if (i + 1 >= args.size()) throw Usage("brak nazwy pliku po " + args[i]);
            (args[i] == "--out" ? outFile : pdfFile) = args[i + 1];
            ++i;
        } else {
            rest.push_back(args[i]);
        }
    }
    if (!outFile.empty() && !pdfFile.empty()) throw Usage("podaj --out albo --pdf, nie oba");
    args = rest;
    if (!pdfFile.empty()) {
        dialogs.pdf = std::make_unique<printing::Spool>();
        dialogs.paper.setSink(dialogs.pdf.get());
    }
}

void Context::emitPrint() {
    dialogs.paper.finish();
    if (!pdfFile.empty()) {
        printing::writePdf(*dialogs.pdf, pdfFile);
    } else if (!outFile.empty()) {
        core::CommitStream out(outFile);
        dialogs.text.copy([&](std::string_view s) { out.write(s); });
        out.commit();
    } else {
        dialogs.text.copy([](std::string_view s) { std::cout.write(s.data(), static_cast<std::streamsize>(s.size())); });
        std::cout.flush();
    }
}

}  // namespace cli
