#include "core/dialogs.h"

#include "core/screens.h"

namespace core {

bool Dialogs::canOpen(const std::string& name) const { return screens && screens->has(name); }

bool Dialogs::open(const std::string& name, Session& s) { return screens && screens->open(name, s, *this); }

}  // namespace core
