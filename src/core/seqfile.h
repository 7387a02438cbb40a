// The sequential text files of the data tree: CP1250, CR LF, items written by a sequential
// write (strings in quotes with nothing escaped, numbers bare, empty items empty, items of one
// write separated by commas) and read back item by item or line by line.
#pragma once
#include <filesystem>
#include <memory>
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

// Hands out the items of a file, decoded to UTF-8. A file is read part by part as its items are
// taken, never whole: a reader keeps at most the lines not yet taken of its current part.
// `name` is used in errors.
class SeqReader {
public:
    // Opens `path`: Error 53 when the file is missing, 76 when its folder is, 75 when it cannot
    // be read (also when a later part cannot be).
    explicit SeqReader(const std::filesystem::path& path);
    // A reader over text already in memory (UTF-8), for tests and for files read whole.
    static SeqReader fromText(std::string text, std::string name = "tekst");
    SeqReader(SeqReader&& o) noexcept;
    SeqReader& operator=(SeqReader&& o) noexcept;
    SeqReader(const SeqReader&) = delete;
    SeqReader& operator=(const SeqReader&) = delete;
    ~SeqReader();

    bool eof() const { return pos_ >= data_.size() && fd_ < 0; }
    // The next item (Input #): Error 62 past the end.
    Item item();
    // The next item's text, whatever its kind.
    std::string text() { return item().text; }
    // The rest of the current line, without its end (Line Input #): Error 62 past the end.
    std::string line();
    // The same two, the text appended to `out` instead of made anew: the item's kind.
    Item::Kind itemInto(std::string& out);
    void lineInto(std::string& out);
    // Number of items read so far (used to name the failing item in errors).
    long itemsRead() const { return items_; }
    const std::string& name() const { return name_; }

private:
    SeqReader() = default;
    void fill();
    void wholeLine();
    void next();
    void skipLineEnd();
    void append(std::string& out, std::size_t from, std::size_t to) const;
    std::string data_;                   // the part not yet taken: CP1250 from a file, UTF-8 from a text
    std::size_t pos_ = 0;
    std::size_t lineEnd_ = std::string::npos;  // a '\n' at or after pos_, or the end of the last part
    int fd_ = -1;                        // open while the file has parts not yet read
    bool cp1250_ = false;
    long items_ = 0;
    std::string name_;
    std::string path_;
};

// Collects the writes of one file: in memory, for commitFile() to put on disk safely, or, made by
// toFile(), straight into a fresh temporary file beside its target that commit() renames over it.
class SeqWriter {
public:
    SeqWriter();
    // A writer into `target` as commitFile writes it (see there), the writes encoded and passed
    // on part by part as they are made. Nothing of the target changes before commit(); a writer
    // destroyed without it removes its temporary file.
    static SeqWriter toFile(const std::filesystem::path& target, const std::string& tempName = {});
    SeqWriter(SeqWriter&& o) noexcept;
    SeqWriter& operator=(SeqWriter&& o) noexcept;
    SeqWriter(const SeqWriter&) = delete;
    SeqWriter& operator=(const SeqWriter&) = delete;
    ~SeqWriter();

    // One sequential write: the items separated by commas, then CR LF.
    void write(const std::vector<Item>& items);
    void write(const Item& item);
    // A line printed as it is, then CR LF.
    void print(std::string_view line);
    // One write made item by item: a quoted item holding a double quote is refused by the caller.
    void put(Item::Kind kind, std::string_view text, bool first);
    void endWrite();
    // What was written (of a writer into a file: what has not yet gone to it).
    const std::string& text() const { return buf_; }
    bool empty() const { return buf_.empty() && !spilled_; }
    // A writer made by toFile(): the rest written, synced and renamed over the target.
    void commit();

private:
    struct File;
    void spill(bool all);
    std::string buf_;
    bool spilled_ = false;
    std::unique_ptr<File> file_;
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
