#include "core/form.h"

#include "core/text.h"

#include <exception>

namespace core {

Control::Control(Form* o, std::string name, Kind k, std::string caption)
    : Name(std::move(name)), kind(k), Caption(std::move(caption)), owner(o) {
    if (owner) owner->controls_.push_back(this);
}

void Control::setGrid(int rows, int cols) {
    Rows = rows;
    Cols = cols;
    Cells.assign(static_cast<std::size_t>(rows), std::vector<std::string>(static_cast<std::size_t>(cols)));
    if (static_cast<int>(ColWidth.size()) != cols) ColWidth.resize(static_cast<std::size_t>(cols), 10);
}

std::string& Control::TextMatrix(int r, int c) {
    if (r < 0 || c < 0 || r >= Rows || c >= Cols)
        throw Error(err::SubscriptOutOfRange, Name + "(" + std::to_string(r) + "," + std::to_string(c) + ")",
                    "komórka poza siatką");
    return Cells[static_cast<std::size_t>(r)][static_cast<std::size_t>(c)];
}

const std::string& Control::TextMatrix(int r, int c) const {
    return const_cast<Control*>(this)->TextMatrix(r, c);
}

std::string Control::selectedText() const {
    if (ListIndex < 0 || ListIndex >= static_cast<int>(List.size())) return {};
    return List[static_cast<std::size_t>(ListIndex)];
}

Form::Form(Dialogs& d, std::string name, std::string caption, ReportWords words)
    : ui(d), Name(std::move(name)), Caption(std::move(caption)), Words(words) {}

void Form::guarded(const std::function<void()>& work) {
    try {
        work();
    } catch (const Error& e) {
        showError(e);
    } catch (const std::exception& e) {
        ui.msgBox(std::string("Nieoczekiwany błąd: ") + e.what(), Buttons::OK, Icon::Critical);
    }
}

namespace {

// The name of a control without its kind prefix and a trailing number: txtUlicaM -> ULICAM,
// txtNazwaListy1 -> NAZWALISTY.
std::string fieldPart(const std::string& name) {
    std::string n = UCase(name);
    if (n.rfind("TXT", 0) == 0) n = n.substr(3);
    while (!n.empty() && n.back() >= '0' && n.back() <= '9') n.pop_back();
    return n;
}

std::string withoutAccelerator(std::string s) {
    std::erase(s, '&');
    return Trim(s);
}

}  // namespace

Control* Form::controlOfField(const TextRefused& e) {
    if (e.FieldNumber > 0)
        for (Control* c : controls_)
            if (c->Field == e.FieldNumber) return c;
    const std::string want = UCase(e.Field);
    for (Control* c : controls_)
        if ((c->kind == Kind::TextBox || c->kind == Kind::ComboBox) && !want.empty() &&
            (fieldPart(c->Name) == want || UCase(c->Name) == "TXT" + want))
            return c;
    return nullptr;
}

void Form::showError(const Error& e, ReportWords words) {
    const auto* refused = dynamic_cast<const TextRefused*>(&e);
    if (!refused) {
        ui.msgBox(errorReport(e, words), Buttons::OK, Icon::Critical, ErrorTitle);
        return;
    }
    std::string label = refused->Field;
    if (Control* c = controlOfField(*refused)) {
        const Control* named = c->LabelControl.empty() ? nullptr : find(c->LabelControl);
        std::string l = withoutAccelerator(named ? named->Caption : c->Label);
        if (!l.empty()) label = l;
        SetFocus(*c);
    }
    ui.msgBox(refusalText(label), Buttons::OK, Icon::Exclamation, "Błędne dane");
}

void Form::fire(Control& c, std::function<void()> Control::*event) {
    const auto& handler = c.*event;
    if (!handler) return;
    guarded(handler);
}

Control* Form::find(const std::string& name) {
    for (Control* c : controls_)
        if (c->Name == name) return c;
    return nullptr;
}

void Form::setOption(Control& option) {
    for (Control* c : controls_)
        if (c->kind == Kind::OptionButton && c->Container == option.Container) c->Value = 0;
    option.Value = 1;
}

}  // namespace core
