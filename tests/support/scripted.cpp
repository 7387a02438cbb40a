#include "support/scripted.h"

namespace testing_support {

core::Answer ScriptedDialogs::msgBox(const std::string& text, core::Buttons buttons, core::Icon icon,
                                     const std::string& title) {
    boxes.push_back({title, text, buttons, icon, false, {}});
    if (!answers.empty()) {
        core::Answer a = answers.front();
        answers.pop_front();
        return a;
    }
    switch (buttons) {
    case core::Buttons::YesNo:
    case core::Buttons::YesNoCancel: return core::Answer::Yes;
    case core::Buttons::AbortRetryIgnore: return core::Answer::Abort;
    case core::Buttons::RetryCancel: return core::Answer::Retry;
    default: return core::Answer::OK;
    }
}

std::optional<std::string> ScriptedDialogs::inputBox(const std::string& prompt, const std::string& title,
                                                     const std::string& def) {
    boxes.push_back({title, prompt, core::Buttons::OKCancel, core::Icon::None, true, def});
    if (inputs.empty()) return std::nullopt;
    auto s = inputs.front();
    inputs.pop_front();
    return s;
}

void ScriptedDialogs::showForm(core::Form& form) {
    formsShown.push_back(form.Name);
    form.guarded([&] { form.Load(); });
    if (!form.Unloaded && onShow) onShow(form);
}

std::vector<std::string> ScriptedDialogs::lines() const {
    std::vector<std::string> out;
    for (const Box& b : boxes) out.push_back("[" + b.title + "] " + b.text);
    return out;
}

}  // namespace testing_support
