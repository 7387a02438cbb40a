#include "core/blok_roku.h"

#include "core/error.h"

namespace core {

namespace {

void czytajMiesiac(SeqReader& in, const UkladBloku& u, BlokRoku& b, int m) {
    b.miesiace[m] = readRecord(in, u.miesiac);
    for (int d = 0; d < 31; ++d) b.dni[m][d] = readRecord(in, u.dzien);
}

}  // namespace

BlokRoku czytajBlok(SeqReader& in, const UkladBloku& u) {
    BlokRoku b;
    b.naglowek = readRecord(in, u.naglowek);
    for (int m = 0; m < 12; ++m) czytajMiesiac(in, u, b, m);
    return b;
}

BlokRoku czytajBlok(SeqReader& in, const UkladBloku& u, int miesiac, bool& urwany) {
    urwany = false;
    BlokRoku b;
    b.naglowek = readRecord(in, u.naglowek);
    int m = 0;
    for (; m < 12 && m < miesiac; ++m) czytajMiesiac(in, u, b, m);
    try {
        for (; m < 12; ++m) czytajMiesiac(in, u, b, m);
    } catch (const Error& e) {
        if (e.Number != err::InputPastEnd) throw;
        urwany = true;
        b.miesiace[m] = Record();
    }
    return b;
}

std::vector<BlokRoku> czytajBloki(SeqReader& in, const UkladBloku& u) {
    std::vector<BlokRoku> out;
    while (!in.eof()) out.push_back(czytajBlok(in, u));
    return out;
}

std::vector<BlokRoku> czytajBloki(const std::filesystem::path& file, const UkladBloku& u) {
    SeqReader in(file);
    return czytajBloki(in, u);
}

void piszBlok(SeqWriter& w, const BlokRoku& b) {
    writeRecord(w, b.naglowek);
    for (int m = 0; m < 12; ++m) {
        writeRecord(w, b.miesiace[m]);
        for (int d = 0; d < 31; ++d) writeRecord(w, b.dni[m][d]);
    }
}

void piszBloki(const std::filesystem::path& file, const std::vector<BlokRoku>& blocks, const std::string& tempName) {
    SeqWriter w;
    for (const BlokRoku& b : blocks) piszBlok(w, b);
    commitFile(file, w, tempName);
}

}  // namespace core
