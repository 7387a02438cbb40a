// The sequential text files of the data tree: CP1250, CR LF, items written by a sequential
// write (strings in quotes with nothing escaped, numbers bare, empty items empty, items of one
// write separated by commas) and read back item by item or line by line.
#pragma once
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace core {

// One item as it stands in the file: its text and whether it was quoted, bare or empty.
struct Item {
    enum Kind : unsigned char { Empty, Quoted, Bare };
    Kind kind = Empty;
    std::string text;

    static Item quoted(std::string s) { return {Quoted, std::move(s)}; }
    static Item bare(std::string s) { return {s.empty() ? Empty : Bare, std::move(s)}; }
    static Item empty() { return {}; }
    bool operator==(const Item&) const = default;
};

// Reads a whole file (decoded to UTF-8) and hands out its items. `name` is used in errors.
class SeqReader {
public:
    // Opens `path`: Error 53 when the file is missing, 76 when its folder is, 75 when it cannot
    // be read.
    explicit SeqReader(const std::filesystem::path& path);
    // A reader over text already in memory (UTF-8), for tests and for files read whole.
    static SeqReader fromText(std::string text, std::string name = "tekst");

    bool eof() const { return pos_ >= text_.size(); }
    // The next item (Input #): Error 62 past the end.
    Item item();
    // The next item's text, whatever its kind.
    std::string text() { return item().text; }
    // The rest of the current line, without its end (Line Input #): Error 62 past the end.
    std::string line();
    // Number of items read so far (used to name the failing item in errors).
    long itemsRead() const { return items_; }
    const std::string& name() const { return name_; }

private:
    SeqReader() = default;
    void skipLineEnd();
    std::string text_;
    std::size_t pos_ = 0;
    long items_ = 0;
    std::string name_;
};

// Collects the writes of one file in memory; commitFile() puts them on disk safely.
class SeqWriter {
public:
    // One sequential write: the items separated by commas, then CR LF.
    void write(const std::vector<Item>& items);
    void write(const Item& item) { write(std::vector<Item>{item}); }
    // A line printed as it is, then CR LF.
    void print(std::string_view line);
    const std::string& text() const { return buf_; }
    bool empty() const { return buf_.empty(); }

private:
    std::string buf_;
};

// Reads a whole file as UTF-8 text: Error 53/76/75 as SeqReader.
std::string readFileText(const std::filesystem::path& path);

// Replaces `target` by `utf8` encoded in CP1250: the content goes to a fresh temporary file in
// the target's folder, created exclusively (never an existing file, never through a link), is
// flushed and synced, and then renamed over the target. `tempName` is the name the system gives
// its temporary file ("tym.dta"); no part reads a temporary file by its name, so it only tells
// the reader of the code which rewrite this is. A failure before the rename leaves the target
// as it was and removes the temporary file; the leftovers of a killed rewrite of the same
// target are removed by the next one.
void commitFile(const std::filesystem::path& target, const std::string& utf8, const std::string& tempName = {});
// The same for bytes written as they are (a PDF, a file of another code page).
void commitBytes(const std::filesystem::path& target, const std::string& bytes, const std::string& tempName = {});
inline void commitFile(const std::filesystem::path& target, const SeqWriter& w, const std::string& tempName = {}) {
    commitFile(target, w.text(), tempName);
}

}  // namespace core
