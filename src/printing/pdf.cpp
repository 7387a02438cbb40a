#include "printing/pdf.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>

#include "core/commitstream.h"
#include "core/error.h"
#include "core/text.h"
#include "printing/sheet.h"

namespace printing {

namespace {

// CP1250 letters outside the standard Latin encoding, by their glyph names.
const char* kDifferences =
    "[128 /Euro 138 /Scaron 140 /Sacute 141 /Tcaron 142 /Zcaron 143 /Zacute 154 /scaron 156 /sacute 157 /tcaron "
    "158 /zcaron 159 /zacute 163 /Lslash 165 /Aogonek 170 /Scedilla 175 /Zdotaccent 179 /lslash 185 /aogonek "
    "186 /scedilla 188 /Lcaron 190 /lcaron 191 /zdotaccent 192 /Racute 195 /Abreve 197 /Lacute 198 /Cacute "
    "200 /Ccaron 202 /Eogonek 204 /Ecaron 207 /Dcaron 208 /Dcroat 209 /Nacute 210 /Ncaron 213 /Ohungarumlaut "
    "216 /Rcaron 217 /Uring 219 /Uhungarumlaut 222 /Tcommaaccent 224 /racute 227 /abreve 229 /lacute 230 /cacute "
    "232 /ccaron 234 /eogonek 236 /ecaron 239 /dcaron 240 /dcroat 241 /nacute 242 /ncaron 245 /ohungarumlaut "
    "248 /rcaron 249 /uring 251 /uhungarumlaut 254 /tcommaaccent 255 /dotaccent]";

std::string pdfString(const std::string& utf8) {
    std::string bytes = core::toCp1250(utf8, "wydruk PDF");
    std::string out = "(";
    for (char c : bytes) {
        if (c == '(' || c == ')' || c == '\\') out += '\\';
        out += c;
    }
    return out + ")";
}

std::string num(double v) {
    char buf[32];
    std::snprintf(buf, sizeof buf, "%.2f", v);
    return buf;
}

}  // namespace

namespace {

// The objects of the file: the encoding, the two fonts, the page tree, then a content stream and
// a page for each page, and the catalogue last.
constexpr int kEncoding = 1, kRegular = 2, kBold = 3, kPages = 4, kFirstPage = 5;

class PdfWriter : public core::PageSink {
public:
    PdfWriter(const std::filesystem::path& file, const Sheet& sheet) : wyjscie(file), arkusz(sheet) {}

    void object(const std::string& body) {
        polozenia.push_back(wyjscie.size());
        wyjscie.write(std::to_string(polozenia.size()) + " 0 obj\n" + body + "\nendobj\n");
    }
    void head(int pages) {
        wyjscie.write("%PDF-1.4\n%\xE2\xE3\xCF\xD3\n");
        const std::string enc = std::to_string(kEncoding) + " 0 R";
        object(std::string("<< /Type /Encoding /BaseEncoding /WinAnsiEncoding /Differences ") + kDifferences + " >>");
        object("<< /Type /Font /Subtype /Type1 /BaseFont /Courier /Encoding " + enc + " >>");
        object("<< /Type /Font /Subtype /Type1 /BaseFont /Courier-Bold /Encoding " + enc + " >>");
        std::string kids;
        for (int i = 0; i < pages; ++i) kids += std::to_string(kFirstPage + 2 * i + 1) + " 0 R ";
        object("<< /Type /Pages /Kids [" + kids + "] /Count " + std::to_string(pages) + " >>");
    }
    void beginPage() override {
        endPage();
        stronaOtwarta = true;
        wiersz = arkusz.height - arkusz.margin;
        trescStrony = "BT\n";
    }
    void line(const core::PrintLine& l) override {
        double size = l.size * arkusz.scale;
        wiersz -= size * kLineHeight;
        trescStrony += (l.bold ? "/F2 " : "/F1 ") + num(size) + " Tf 1 0 0 1 " + num(arkusz.margin) + " " + num(wiersz) +
                    " Tm " + pdfString(l.text) + " Tj\n";
    }
    void endPage() {
        if (!stronaOtwarta) return;
        stronaOtwarta = false;
        trescStrony += "ET\n";
        // The content is written as it stands, not copied into the object's text.
        polozenia.push_back(wyjscie.size());
        wyjscie.write(std::to_string(polozenia.size()) + " 0 obj\n<< /Length " + std::to_string(trescStrony.size()) +
                   " >>\nstream\n");
        wyjscie.write(trescStrony);
        wyjscie.write("endstream\nendobj\n");
        trescStrony.clear();
        trescStrony.shrink_to_fit();
        object("<< /Type /Page /Parent " + std::to_string(kPages) + " 0 R /MediaBox [0 0 " + num(arkusz.width) + " " +
               num(arkusz.height) + "] /Resources << /Font << /F1 " + std::to_string(kRegular) + " 0 R /F2 " +
               std::to_string(kBold) + " 0 R >> >> /Contents " + std::to_string(polozenia.size()) + " 0 R >>");
    }
    void finish() {
        endPage();
        object("<< /Type /Catalog /Pages " + std::to_string(kPages) + " 0 R >>");
        const std::uint64_t xref = wyjscie.size();
        const std::string count = std::to_string(polozenia.size() + 1);
        wyjscie.write("xref\n0 " + count + "\n0000000000 65535 f \n");
        for (std::uint64_t off : polozenia) {
            char buf[32];
            std::snprintf(buf, sizeof buf, "%010llu 00000 n \n", static_cast<unsigned long long>(off));
            wyjscie.write(buf);
        }
        wyjscie.write("trailer\n<< /Size " + count + " /Root " + std::to_string(polozenia.size()) + " 0 R >>\nstartxref\n" +
                   std::to_string(xref) + "\n%%EOF\n");
        // Bytes as they are: the text inside is already in the PDF's own encoding.
        wyjscie.commit();
    }

private:
    core::CommitStream wyjscie;
    Sheet arkusz;
    std::vector<std::uint64_t> polozenia;
    std::string trescStrony;
    double wiersz = 0;
    bool stronaOtwarta = false;
};

}  // namespace

void writePdf(const Spool& pages, const std::filesystem::path& file) {
    const Sheet sheet = pages.sheet();
    PdfWriter w(file, sheet);
    // A print with nothing in it still gives a sheet.
    w.head(std::max(pages.pageCount(), 1));
    if (pages.pageCount() == 0) w.beginPage();
    else pages.replay(w);
    w.finish();
}

void writePdf(const std::vector<core::TextPrinter::Page>& pages, const std::filesystem::path& file) {
    Spool spool;
    for (const auto& page : pages) {
        spool.beginPage();
        for (const auto& line : page) spool.line(line);
    }
    writePdf(spool, file);
}

}  // namespace printing
