#include "core/fieldboxes.h"

#include <map>

namespace core {

FieldBoxes::FieldBoxes(Form& form, std::span<const FieldBox> defs) : defs_(defs), formName_(form.Name) {
    std::map<std::string, int> next;
    for (const FieldBox& d : defs) {
        auto c = std::make_unique<Control>(&form, d.control, Kind::TextBox);
        int& free = next[d.frame];
        int row = d.row >= 0 ? d.row : free;
        free = std::max(free, row + 1);
        c->in(d.frame).at(row, 0).label(d.label).width(d.width);
        boxes_.push_back(std::move(c));
    }
}

Control& FieldBoxes::operator[](int field) {
    for (std::size_t i = 0; i < defs_.size(); ++i)
        if (defs_[i].field == field) return *boxes_[i];
    throw Error(err::SubscriptOutOfRange, formName_ + ", pole " + std::to_string(field), "pole bez okna tekstowego");
}

void FieldBoxes::fill(const Record& r) {
    for (std::size_t i = 0; i < defs_.size(); ++i) boxes_[i]->Text = r.valid() ? r.s(defs_[i].field) : std::string();
}

void FieldBoxes::clear() {
    for (auto& b : boxes_) b->Text.clear();
}

}  // namespace core
