// Routing of the main menu: each subsystem registers the screens it opens under the name of
// the menu entry that opens them; the main window enables exactly the entries registered.
#pragma once
#include <functional>
#include <map>
#include <string>

#include "core/dialogs.h"
#include "core/session.h"

namespace core {

class Screens {
public:
    using Opener = std::function<void(Session&, Dialogs&)>;
    void add(const std::string& entry, Opener open) { openers_[entry] = std::move(open); }
    // Registers a screen that is made on the session and shown modally.
    template <class Screen>
    void addForm(const std::string& entry) {
        add(entry, [](Session& s, Dialogs& d) {
            Screen f(d, s);
            d.showForm(f);
        });
    }
    bool has(const std::string& entry) const { return openers_.count(entry) != 0; }
    // Opens the screen of the entry; false when no screen is registered for it.
    bool open(const std::string& entry, Session& s, Dialogs& d) const {
        auto it = openers_.find(entry);
        if (it == openers_.end()) return false;
        it->second(s, d);
        return true;
    }

private:
    std::map<std::string, Opener> openers_;
};

}  // namespace core
