#include "personnel/postal_codes.h"

#include <iterator>

namespace personnel {

namespace {

struct Wiersz {
    const char* kod;
    AdresPocztowy adres;
};

const Wiersz kKody[] = {
    {"32-400", {"Myślenice", "Myślenice", "Myślenice", "Myślenice", "Małopolskie"}},
    {"32-410", {"Dobczyce", "Dobczyce", "Dobczyce", "Myślenice", "Małopolskie"}},
    {"32-422", {"Stadniki", "Stadniki", "Dobczyce", "Myślenice", "Małopolskie"}},
    {"32-411", {"Dziekanowice", "Dziekanowice", "Dobczyce", "Myślenice", "Małopolskie"}},
    {"32-412", {"Wiśniowa", "Wiśniowa", "Wiśniowa", "Myślenice", "Małopolskie"}},
    {"32-420", {"Gdów", "Gdów", "Gdów", "Myślenice", "Małopolskie"}},
    {"32-415", {"Raciechowice", "Raciechowice", "Raciechowice", "Myślenice", "Małopolskie"}},
    {"32-413", {"Zegartowice", "Zegartowice", "Raciechowice", "Myślenice", "Małopolskie"}},
    {"32-414", {"Gruszów", "Gruszów", "Raciechowice", "Myślenice", "Małopolskie"}},
    {"32-406", {"Zakliczyn", "Zakliczyn", "Siepraw", "Myślenice", "Małopolskie"}},
    {"32-447", {"Siepraw", "Siepraw", "Siepraw", "Myślenice", "Małopolskie"}},
    {"32-040", {"Świątniki Górne", "Świątniki Górne", "Świątniki Górne", "Kraków", "Małopolskie"}},
    {"32-440", {"Sułkowice", "Sułkowice", "Sułkowice", "Kraków", "Małopolskie"}},
    {"32-432", {"Pcim", "Pcim", "Pcim", "Myślenice", "Małopolskie"}},
    {"32-700", {"Bochnia", "Bochnia", "Bochnia", "Bochnia", "Małopolskie"}},
    {"32-566", {"Alwernia", "Alwernia", "Alwernia", "Chrzanów", "Małopolskie"}},
    {"30-444", {"Libertów", "Kraków 55", "Mogilany", "Kraków", "Małopolskie"}},
    {"08-210", {"Platerów", "Platerów", "Platerów", "Łosice", "Bialskopodlaskie"}},
    {"32-020", {"Wieliczka", "Wieliczka", "Wieliczka", "Wieliczka", "Małopolskie"}},
    {"34-100", {"Wadowice", "Wadowice", "Wadowice", "Wadowice", "Małopolskie"}},
    {"34-700", {"Rabka-Zdrój", "Rabka-Zdrój", "Rabka-Zdrój", "Nowy Targ", "Małopolskie"}},
};

}  // namespace

AdresPocztowy szukajKoduPocztowego(const std::string& kod) {
    for (const Wiersz& w : kKody)
        if (kod == w.kod) return w.adres;
    return {};
}

int liczbaKodowPocztowych() { return static_cast<int>(std::size(kKody)); }

}  // namespace personnel
