// The line printer of the system: a font by name, size and boldness, text with or without a
// line end, empty lines, new pages, the end of the document. The Qt program prints through a
// preview, PDF or a system printer; the command line and the tests collect the text.
#pragma once
#include <string>
#include <vector>

namespace core {

class Printer {
public:
    virtual ~Printer() = default;
    virtual void setFont(const std::string& name, double size, bool bold) = 0;
    virtual void setBold(bool bold) = 0;
    virtual void setFontSize(double size) = 0;
    // Text at the current position; with `newLine` the line ends after it.
    virtual void print(const std::string& text, bool newLine = true) = 0;
    void emptyLine() { print(std::string{}, true); }
    virtual void newPage() = 0;
    virtual void endDoc() = 0;
    // The printer's state before a print: 0 when ready, else the error number (27 out of
    // paper, 25 device timeout).
    virtual int status() const { return 0; }
};

// A printer that keeps the pages as lines of text.
class TextPrinter : public Printer {
public:
    struct Line {
        std::string text;
        bool bold = false;
        double size = 10;
        std::string font = "Courier New";
    };
    using Page = std::vector<Line>;

    void setFont(const std::string& name, double size, bool bold) override;
    void setBold(bool bold) override { bold_ = bold; }
    void setFontSize(double size) override { size_ = size; }
    void print(const std::string& text, bool newLine = true) override;
    void newPage() override;
    void endDoc() override;
    int status() const override { return status_; }
    void setStatus(int s) { status_ = s; }

    // Finished documents, each a list of pages.
    const std::vector<std::vector<Page>>& documents() const { return docs_; }
    // The pages of all documents so far, the current one included.
    std::vector<Page> pages() const;
    // All pages as text: lines end with "\n", pages are separated by a form feed.
    std::string text() const;
    std::string fontName() const { return font_; }

private:
    void flushLine();
    std::vector<std::vector<Page>> docs_;
    std::vector<Page> current_;
    std::string pending_;
    bool pendingOpen_ = false;
    bool bold_ = false;
    double size_ = 10;
    std::string font_ = "Courier New";
    int status_ = 0;
};

}  // namespace core
