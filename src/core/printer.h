// The line printer of the system: a font by name, size and boldness, text with or without a
// line end, empty lines, new pages, the end of the document. The lines go out as they are
// printed to a sink: the Qt program's preview, PDF or system printer, the command line's file;
// the tests collect them.
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

// One printed line with its font.
struct PrintLine {
    std::string text;
    bool bold = false;
    double size = 10;
    std::string font = "Courier New";
};

// Where the pages go, line by line, as they are printed.
class PageSink {
public:
    virtual ~PageSink() = default;
    // A page begins (the first of each document too).
    virtual void beginPage() = 0;
    virtual void line(const PrintLine& l) = 0;
    // A document with at least one page ended.
    virtual void endDoc() {}
};

// The printer that hands its pages to a sink as they are printed. A page feed with nothing
// printed after it by the end of the document gives no sheet; the first line of a document
// begins its first page.
class StreamPrinter : public Printer {
public:
    explicit StreamPrinter(PageSink* sink = nullptr) : sink_(sink) {}
    void setSink(PageSink* sink) { sink_ = sink; }
    PageSink* sink() const { return sink_; }

    void setFont(const std::string& name, double size, bool bold) override;
    void setBold(bool bold) override { bold_ = bold; }
    void setFontSize(double size) override { size_ = size; }
    void print(const std::string& text, bool newLine = true) override;
    void newPage() override;
    void endDoc() override;
    int status() const override { return status_; }
    void setStatus(int s) { status_ = s; }
    std::string fontName() const { return font_; }

    // The end of the whole print, documents left open included: a line still open is printed,
    // a page feed of an unfinished document gives its (empty) page.
    void finish();

protected:
    // The state of an unfinished document: the line still open, the page feed not yet followed.
    bool lineOpen() const { return pendingOpen_; }
    PrintLine openLine() const { return {pending_, bold_, size_, font_}; }
    bool feedPending() const { return feed_; }

private:
    void flushLine();
    void startPage();
    PageSink* sink_;
    std::string pending_;
    bool pendingOpen_ = false;
    bool bold_ = false;
    double size_ = 10;
    std::string font_ = "Courier New";
    int status_ = 0;
    int docPages_ = 0;   // pages of the current document given to the sink
    bool feed_ = false;  // a page feed not yet followed by anything
    bool anyPage_ = false;
};

// A printer that keeps the pages as lines of text (the tests, short prints on the screen).
class TextPrinter : public StreamPrinter {
public:
    using Line = PrintLine;
    using Page = std::vector<Line>;

    TextPrinter() : StreamPrinter(&kept_) {}
    TextPrinter(const TextPrinter&) = delete;
    TextPrinter& operator=(const TextPrinter&) = delete;

    // Finished documents, each a list of pages.
    const std::vector<std::vector<Page>>& documents() const { return kept_.docs; }
    // The pages of all documents so far, the current one included.
    std::vector<Page> pages() const;
    // All pages as text: lines end with "\n", pages are separated by a form feed.
    std::string text() const;

private:
    struct Kept : PageSink {
        void beginPage() override { current.emplace_back(); }
        void line(const PrintLine& l) override { current.back().push_back(l); }
        void endDoc() override;
        std::vector<std::vector<Page>> docs;
        std::vector<Page> current;
    } kept_;
};

}  // namespace core
