// Commands of the payers and their pay lists.
#include <iostream>

#include "cli/cli.h"
#include "core/text.h"
#include "reference/catalogue.h"
#include "reference/payers.h"

namespace {

cli::Register payers("payers", {"payers", "Płatnicy z rejestru MojaFirma.txt: skrót i pełna nazwa, po jednym w wierszu",
                                [](cli::Context& c) {
                                    if (!c.args.empty()) throw cli::Usage("payers nie przyjmuje argumentów");
                                    c.openSession();
                                    auto recs = reference::readPayers(c.session);
                                    std::size_t w = 0;
                                    for (const auto& r : recs)
                                        w = std::max(w, core::Len(r.s(reference::Firma::SkrotPlatnika)));
                                    for (const auto& r : recs)
                                        std::cout << core::PadRight(r.s(reference::Firma::SkrotPlatnika), w) << "  "
                                                  << r.s(reference::Firma::NazwaM) << "\n";
                                    return 0;
                                }, cli::Reads});

cli::Register lists("lists", {"lists", "listy płac Płatnika sesji (instal.dat) tak, jak pokazuje je wybór listy",
                              [](cli::Context& c) {
                                  if (!c.args.empty()) throw cli::Usage("lists nie przyjmuje argumentów");
                                  c.openSession();
                                  for (const auto& l : reference::Instal::read(c.session))
                                      std::cout << reference::displayLine(l) << "\n";
                                  return 0;
                              }, cli::Reads});

}  // namespace
