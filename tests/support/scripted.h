// Dialogs for tests: every box shown is recorded (title, text, buttons, icon); answers come
// from a queue prepared by the test. A box without a prepared answer gets the default button
// (OK or Yes), an input box without one is cancelled.
#pragma once
#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "core/dialogs.h"
#include "core/form.h"
#include "core/printer.h"

namespace testing_support {

struct Box {
    std::string title, text;
    core::Buttons buttons = core::Buttons::OK;
    core::Icon icon = core::Icon::None;
    bool input = false;  // an input box; `text` holds its prompt, `def` its default
    std::string def;
};

class ScriptedDialogs : public core::Dialogs {
public:
    std::vector<Box> boxes;
    std::deque<core::Answer> answers;
    std::deque<std::optional<std::string>> inputs;
    std::vector<std::string> formsShown;
    // Runs while a screen opened by another screen is shown (after its Load).
    std::function<void(core::Form&)> onShow;

    ScriptedDialogs& answer(core::Answer a) {
        answers.push_back(a);
        return *this;
    }
    ScriptedDialogs& type(std::optional<std::string> s) {
        inputs.push_back(std::move(s));
        return *this;
    }

    core::Answer msgBox(const std::string& text, core::Buttons buttons, core::Icon icon, const std::string& title) override;
    std::optional<std::string> inputBox(const std::string& prompt, const std::string& title, const std::string& def) override;
    void showForm(core::Form& form) override;
    void doEvents(core::Form&) override { ++events; }
    core::TextPrinter paper;
    core::Printer& printer() override { return paper; }
    int events = 0;

    // The boxes as "[title] text" lines, for readable expectations.
    std::vector<std::string> lines() const;
    std::string last() const { return lines().empty() ? std::string() : lines().back(); }
};

}  // namespace testing_support
