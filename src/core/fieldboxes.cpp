#include "core/fieldboxes.h"

#include <map>

namespace core {

FieldBoxes::FieldBoxes(Form& form, std::span<const FieldBox> defs) : defs_(defs), formName_(form.Name) {
    std::map<std::string, int> next;
    for (const FieldBox& d : defs) {
        auto c = std::make_unique<Control>(&form, d.control, d.kind);
        int& free = next[d.frame];
        int row = d.row >= 0 ? d.row : free;
        free = std::max(free, row + 1);
        c->in(d.frame).at(row, d.slot, d.span).label(d.label).width(d.width);
        c->Field = d.field;
        boxes_.push_back(std::move(c));
    }
}

Control& FieldBoxes::operator[](int field) {
    for (std::size_t i = 0; i < defs_.size(); ++i)
        if (defs_[i].field == field) return *boxes_[i];
    throw Error(err::SubscriptOutOfRange, formName_ + ", pole " + std::to_string(field), "pole bez okna tekstowego");
}

bool FieldBoxes::has(int field) const {
    for (const FieldBox& d : defs_)
        if (d.field == field) return true;
    return false;
}

void FieldBoxes::fill(const Record& r) {
    for (std::size_t i = 0; i < defs_.size(); ++i) {
        Control& c = *boxes_[i];
        (c.kind == Kind::Label ? c.Caption : c.Text) = r.valid() ? r.s(defs_[i].field) : std::string();
    }
}

void FieldBoxes::clear() {
    for (auto& b : boxes_) (b->kind == Kind::Label ? b->Caption : b->Text).clear();
}

}  // namespace core
