#include <gtest/gtest.h>

#include "core/printer.h"
#include "core/text.h"
#include "printing/pdf.h"
#include "printing/sheet.h"
#include "printing/spool.h"
#include "support/run.h"
#include "support/tempdir.h"

using core::TextPrinter;
using testing_support::readBytes;
using testing_support::TempDir;

namespace {
std::vector<TextPrinter::Page> document(int lines, std::size_t width, int pages = 1) {
    TextPrinter p;
    p.setFont("Courier New", 10, false);
    for (int pg = 0; pg < pages; ++pg) {
        if (pg) p.newPage();
        for (int i = 0; i < lines; ++i) p.print(core::PadRight("Zażółć gęślą jaźń " + std::to_string(i), width));
    }
    p.endDoc();
    return p.pages();
}
}  // namespace

TEST(Sheet, OrientationAndScaleKeepEveryLineOnThePage) {
    struct {
        int lines;
        std::size_t width;
        bool landscape;
        double scale;
    } cases[] = {
        {40, 80, false, 1.0},                             // fits a portrait sheet as it is
        {40, 134, true, (841.89 - 56.7) / (134 * 6.0)},  // the wide list: landscape, slightly smaller
        {78, 134, false, (595.276 - 56.7) / (134 * 6.0)},  // wide and long: portrait, smaller still
    };
    for (const auto& c : cases) {
        auto s = printing::fitSheet(document(c.lines, c.width));
        EXPECT_EQ(s.landscape, c.landscape) << c.lines << "x" << c.width;
        EXPECT_NEAR(s.scale, c.scale, 1e-9) << c.lines << "x" << c.width;
        double w = s.width - 2 * s.margin, h = s.height - 2 * s.margin;
        EXPECT_LE(c.width * 10 * s.scale * printing::kCharWidth, w + 1e-6);
        EXPECT_LE(c.lines * 10 * s.scale * printing::kLineHeight, h + 1e-6);
    }
}

TEST(Pdf, PagesAndPolishLetters) {
    TempDir dir;
    auto file = dir / "lista.pdf";
    printing::writePdf(document(5, 134, 3), file);
    std::string pdf = readBytes(file);
    ASSERT_EQ(pdf.substr(0, 8), "%PDF-1.4");
    EXPECT_NE(pdf.find("/Count 3"), std::string::npos);
    EXPECT_NE(pdf.find(core::toCp1250("(Zażółć gęślą jaźń 4")), std::string::npos);
    EXPECT_NE(pdf.find("/MediaBox [0 0 841.89 595.28]"), std::string::npos);  // landscape
    // The text comes back out when a PDF tool is at hand.
    if (std::filesystem::exists("/usr/bin/pdftotext")) {
        auto r = testing_support::run("/usr/bin/pdftotext", {"-layout", file.string(), "-"}, dir.path());
        EXPECT_NE(r.out.find("Zażółć gęślą jaźń 4"), std::string::npos) << r.out;
    }
}

// A print as the engine makes it, in short: "a" a line, "~a" text left open, "|" a page feed,
// "." the end of a document. The pages kept by the text printer and those streamed into a spool
// and read back are the same, page feeds and open lines at the end included.
TEST(Spool, StreamedPagesAreThePagesPrinted) {
    struct {
        const char* name;
        std::vector<std::string> script;
        std::string text;
    } cases[] = {
        {"two pages", {"a", "|", "b", "."}, "a\n\fb\n"},
        {"feed at the end gives no sheet", {"a", "|", "."}, "a\n"},
        {"feed first leaves an empty page", {"|", "a", "."}, "\fa\n"},
        {"two feeds leave an empty page", {"a", "|", "|", "b", "."}, "a\n\f\fb\n"},
        {"two documents", {"a", ".", "b", "."}, "a\n\fb\n"},
        {"open line of an unfinished print", {"a", "~x"}, "a\nx\n"},
        {"open line after a document stays on its sheet", {"a", ".", "~x"}, "a\nx\n"},
        {"feed of an unfinished document", {"a", "|"}, "a\n\f"},
        {"nothing", {"."}, ""},
    };
    for (const auto& c : cases) {
        TextPrinter kept;
        printing::Spool spool;
        core::StreamPrinter streamed(&spool);
        for (core::StreamPrinter* p : {static_cast<core::StreamPrinter*>(&kept), &streamed})
            for (const std::string& op : c.script) {
                if (op == "|") p->newPage();
                else if (op == ".") p->endDoc();
                else if (op[0] == '~') p->print(op.substr(1), false);
                else p->print(op);
            }
        EXPECT_EQ(kept.text(), c.text) << c.name;
        streamed.finish();
        const std::vector<TextPrinter::Page> pages = spool.pages();
        std::string text;
        for (std::size_t i = 0; i < pages.size(); ++i) {
            if (i) text += '\f';
            for (const auto& l : pages[i]) text += l.text + "\n";
        }
        EXPECT_EQ(text, c.text) << c.name;
        EXPECT_EQ(spool.pageCount(), static_cast<int>(pages.size())) << c.name;
    }
}
