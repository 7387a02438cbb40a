// Commands of the personnel file: the people of a list.
#include <iostream>

#include "cli/cli.h"
#include "core/paths.h"
#include "core/text.h"
#include "personnel/person_record.h"

namespace {

cli::Register persons("persons", {"persons LISTA", "osoby listy płac, po jednej w wierszu jak na liście pracowników",
                                  [](cli::Context& c) {
                                      if (c.args.size() != 1) throw cli::Usage("persons wymaga nazwy listy");
                                      const std::string lista = core::Trim(c.args[0]);
                                      if (lista.empty()) throw cli::Usage("persons wymaga nazwy listy");
                                      c.openSession();
                                      auto plik = personnel::Osoba::pathOf(c.session, lista);
                                      if (!core::fileExists(plik)) {
                                          std::cerr << "pensja-cli: lista " << lista << " płatnika "
                                                    << c.session.SkrotPlatnika << " nie ma kartoteki osobowej ("
                                                    << plik.string() << ")\n";
                                          return 1;
                                      }
                                      int numer = 0;
                                      for (const core::Record& o : personnel::Osoba::readAll(plik))
                                          std::cout << personnel::wierszListy(++numer, o) << "\n";
                                      return 0;
                                  }, cli::Reads});

}  // namespace
