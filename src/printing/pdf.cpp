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
    PdfWriter(const std::filesystem::path& file, const Sheet& sheet) : out_(file), sheet_(sheet) {}

    void object(const std::string& body) {
        offsets_.push_back(out_.size());
        out_.write(std::to_string(offsets_.size()) + " 0 obj\n" + body + "\nendobj\n");
    }
    void head(int pages) {
        out_.write("%PDF-1.4\n%\xE2\xE3\xCF\xD3\n");
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
        open_ = true;
        y_ = sheet_.height - sheet_.margin;
        content_ = "BT\n";
    }
    void line(const core::PrintLine& l) override {
        double size = l.size * sheet_.scale;
        y_ -= size * kLineHeight;
        content_ += (l.bold ? "/F2 " : "/F1 ") + num(size) + " Tf 1 0 0 1 " + num(sheet_.margin) + " " + num(y_) +
                    " Tm " + pdfString(l.text) + " Tj\n";
    }
    void endPage() {
        if (!open_) return;
        open_ = false;
        content_ += "ET\n";
        // The content is written as it stands, not copied into the object's text.
        offsets_.push_back(out_.size());
        out_.write(std::to_string(offsets_.size()) + " 0 obj\n<< /Length " + std::to_string(content_.size()) +
                   " >>\nstream\n");
        out_.write(content_);
        out_.write("endstream\nendobj\n");
        content_.clear();
        content_.shrink_to_fit();
        object("<< /Type /Page /Parent " + std::to_string(kPages) + " 0 R /MediaBox [0 0 " + num(sheet_.width) + " " +
               num(sheet_.height) + "] /Resources << /Font << /F1 " + std::to_string(kRegular) + " 0 R /F2 " +
               std::to_string(kBold) + " 0 R >> >> /Contents " + std::to_string(offsets_.size()) + " 0 R >>");
    }
    void finish() {
        endPage();
        object("<< /Type /Catalog /Pages " + std::to_string(kPages) + " 0 R >>");
        const std::uint64_t xref = out_.size();
        const std::string count = std::to_string(offsets_.size() + 1);
        out_.write("xref\n0 " + count + "\n0000000000 65535 f \n");
        for (std::uint64_t off : offsets_) {
            char buf[32];
            std::snprintf(buf, sizeof buf, "%010llu 00000 n \n", static_cast<unsigned long long>(off));
            out_.write(buf);
        }
        out_.write("trailer\n<< /Size " + count + " /Root " + std::to_string(offsets_.size()) + " 0 R >>\nstartxref\n" +
                   std::to_string(xref) + "\n%%EOF\n");
        // Bytes as they are: the text inside is already in the PDF's own encoding.
        out_.commit();
    }

private:
    core::CommitStream out_;
    Sheet sheet_;
    std::vector<std::uint64_t> offsets_;
    std::string content_;
    double y_ = 0;
    bool open_ = false;
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
