// Text boxes (or labels) bound to the fields of a record: a screen lists them in a table
// (field, control name, label, frame, row, width, slot, kind, span) and gets the controls made,
// placed, looked up by field and filled from a record.
#pragma once
#include <memory>
#include <span>
#include <vector>

#include "core/form.h"
#include "core/record.h"

namespace core {

struct FieldBox {
    int field;            // number of the field in the record
    const char* control;  // name of the text box
    const char* label;    // the caption beside it
    const char* frame;    // the frame holding it ("" for the screen itself)
    int row = -1;         // row in the frame; -1 for the next free row
    int width = 10;       // characters
    int slot = 0;         // the slot of the row (the column of label and box)
    Kind kind = Kind::TextBox;  // a Label shows its field in its caption
    int span = 1;         // the slots of the row the box takes
};

class FieldBoxes {
public:
    // Makes the text boxes on `form`, in the order of the table.
    FieldBoxes(Form& form, std::span<const FieldBox> defs);

    // The box of a field; Error 9 when the table has none.
    bool has(int field) const;
    Control& operator[](int field);
    std::size_t size() const { return boxes_.size(); }
    Control& box(std::size_t i) { return *boxes_[i]; }
    const FieldBox& def(std::size_t i) const { return defs_[i]; }

    // Every box takes the text of its field (a label in its caption); with an invalid record
    // every box is emptied.
    void fill(const Record& r);
    void clear();

private:
    std::span<const FieldBox> defs_;
    std::vector<std::unique_ptr<Control>> boxes_;
    std::string formName_;
};

}  // namespace core
