#include "printing/pdf.h"

#include <cstdio>
#include <sstream>

#include "core/error.h"
#include "core/seqfile.h"
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

void writePdf(const std::vector<core::TextPrinter::Page>& pagesIn, const std::filesystem::path& file) {
    std::vector<core::TextPrinter::Page> pages = pagesIn;
    if (pages.empty()) pages.emplace_back();
    Sheet sheet = fitSheet(pages);

    std::vector<std::string> objects;  // bodies, object n = index + 1
    auto add = [&](std::string body) {
        objects.push_back(std::move(body));
        return static_cast<int>(objects.size());
    };
    std::string enc = std::string("<< /Type /Encoding /BaseEncoding /WinAnsiEncoding /Differences ") + kDifferences + " >>";
    int encoding = add(enc);
    int regular = add("<< /Type /Font /Subtype /Type1 /BaseFont /Courier /Encoding " + std::to_string(encoding) + " 0 R >>");
    int bold = add("<< /Type /Font /Subtype /Type1 /BaseFont /Courier-Bold /Encoding " + std::to_string(encoding) + " 0 R >>");
    int pagesObj = add("");  // filled in below
    std::vector<int> kids;
    for (const auto& page : pages) {
        std::ostringstream c;
        double y = sheet.height - sheet.margin;
        c << "BT\n";
        for (const auto& line : page) {
            double size = line.size * sheet.scale;
            y -= size * kLineHeight;
            c << (line.bold ? "/F2 " : "/F1 ") << num(size) << " Tf 1 0 0 1 " << num(sheet.margin) << " " << num(y)
              << " Tm " << pdfString(line.text) << " Tj\n";
        }
        c << "ET\n";
        std::string stream = c.str();
        int content = add("<< /Length " + std::to_string(stream.size()) + " >>\nstream\n" + stream + "endstream");
        kids.push_back(add("<< /Type /Page /Parent " + std::to_string(pagesObj) + " 0 R /MediaBox [0 0 " + num(sheet.width) +
                           " " + num(sheet.height) + "] /Resources << /Font << /F1 " + std::to_string(regular) +
                           " 0 R /F2 " + std::to_string(bold) + " 0 R >> >> /Contents " + std::to_string(content) +
                           " 0 R >>"));
    }
    std::string kidsText;
    for (int k : kids) kidsText += std::to_string(k) + " 0 R ";
    objects[pagesObj - 1] = "<< /Type /Pages /Kids [" + kidsText + "] /Count " + std::to_string(kids.size()) + " >>";
    int catalog = add("<< /Type /Catalog /Pages " + std::to_string(pagesObj) + " 0 R >>");

    std::string out = "%PDF-1.4\n%\xE2\xE3\xCF\xD3\n";
    std::vector<std::size_t> offsets;
    for (std::size_t i = 0; i < objects.size(); ++i) {
        offsets.push_back(out.size());
        out += std::to_string(i + 1) + " 0 obj\n" + objects[i] + "\nendobj\n";
    }
    std::size_t xref = out.size();
    out += "xref\n0 " + std::to_string(objects.size() + 1) + "\n0000000000 65535 f \n";
    for (std::size_t off : offsets) {
        char buf[32];
        std::snprintf(buf, sizeof buf, "%010zu 00000 n \n", off);
        out += buf;
    }
    out += "trailer\n<< /Size " + std::to_string(objects.size() + 1) + " /Root " + std::to_string(catalog) +
           " 0 R >>\nstartxref\n" + std::to_string(xref) + "\n%%EOF\n";

    // Bytes as they are: the text inside is already in the PDF's own encoding.
    core::commitBytes(file, out);
}

}  // namespace printing
