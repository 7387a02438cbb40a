#include <fstream>
#include <iostream>

#include "cli/cli.h"
#include "core/seqfile.h"
#include "printing/pdf.h"

namespace cli {

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
}

void Context::emitPrint() {
    if (!pdfFile.empty()) {
        printing::writePdf(dialogs.paper.pages(), pdfFile);
    } else if (!outFile.empty()) {
        core::commitBytes(outFile, dialogs.paper.text());
    } else {
        std::cout << dialogs.paper.text();
    }
}

}  // namespace cli
