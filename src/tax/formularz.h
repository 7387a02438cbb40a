// Printing onto a pre-printed official form: every field of the form is a position (page,
// line, column, width) filled from a named source; the line is reached with blanks and the
// value printed there, a tick box is a blank run ending in "X". One table a form.
#pragma once
#include <map>
#include <span>
#include <string>
#include <vector>

#include "core/printer.h"
#include "core/record.h"

namespace tax {

enum class Wyr : unsigned char { L, P };  // a text from the left edge of the box, an amount to the right

struct Pole {
    int strona;          // 1 or 2
    int linia;           // 1-based line of the page (lines of 1/6 inch at 10 points)
    int kolumna;         // 1-based column (characters of Courier New 10 points)
    int szerokosc;       // characters of the box; a longer value is cut
    const char* zrodlo;  // the name of the value
    Wyr wyr = Wyr::L;
};

struct Formularz {
    const char* nazwa;     // "PIT-11"
    const char* wydanie;   // the edition whose boxes the table follows
    std::span<const Pole> pola;
};

// The values of one print by source name. A source missing from the map prints nothing; a
// tick is the value "X".
using Wartosci = std::map<std::string, std::string>;

// The payer's boxes of every form: NIP, name and the tick of a natural person (a type beginning
// with "F") or of another payer, from the payer's record of MojaFirma.txt.
void wartosciPlatnika(Wartosci& w, const core::Record& firma);

// The lines of a page as they go to the printer (trailing blanks dropped, empty lines kept up
// to the last line the table uses).
std::vector<std::string> linieStrony(const Formularz& f, int strona, const Wartosci& w);
// Prints those lines.
void drukujStrone(core::Printer& p, const Formularz& f, int strona, const Wartosci& w);

// The forms.
const Formularz& formularzPit4();
const Formularz& formularzPit11();
const Formularz& formularzPit8B();
const Formularz& formularzPit40();

}  // namespace tax
