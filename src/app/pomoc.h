// The help window of the main menu: a short guide for the operator.
#pragma once
#include "core/form.h"
#include "core/session.h"

namespace app {

class PomocScreen : public core::Form {
public:
    PomocScreen(core::Dialogs& ui, const core::Session& s);
    void Load() override;

    const core::Session& s;
    core::Control txtPomoc{this, "txtPomoc", core::Kind::TextBox};
    core::Control cmdZamknij{this, "cmdZamknij", core::Kind::CommandButton, "&Zamknij"};
};

// The text of the guide, with the folders of the session's data.
std::string tekstPomocy(const core::Session& s);

}  // namespace app
