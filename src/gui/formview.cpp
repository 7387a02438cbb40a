#include "gui/formview.h"

#include <algorithm>

#include <QAction>
#include <QCalendarWidget>
#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QFileSystemModel>
#include <QFontDatabase>
#include <QColor>
#include <QGridLayout>
#include <QPalette>
#include <QScrollBar>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QTabBar>
#include <QTableWidget>
#include <QTimer>
#include <QToolTip>
#include <QTreeView>
#include <QVBoxLayout>

#include "gui/qtext.h"

namespace gui {

using core::Control;
using core::Kind;

namespace {

// A colour value of the classic controls (0xBBGGRR).
QColor vbColor(long v) { return QColor(v & 0xFF, (v >> 8) & 0xFF, (v >> 16) & 0xFF); }

std::map<core::Form*, FormView*>& views() {
    static std::map<core::Form*, FormView*> v;
    return v;
}

// A label's caption: "&" marks an access key on buttons and menus, but is shown on labels.
QString labelText(const std::string& s) {
    QString t = q(s);
    t.replace("&&", "\x01");
    t.remove('&');
    t.replace("\x01", "&");
    return t;
}

QFont monoFont() {
    QFont f("Courier New");
    f.setStyleHint(QFont::Monospace);
    f.setFixedPitch(true);
    return f;
}

QDate toQDate(const std::string& ddmmyyyy) { return QDate::fromString(q(ddmmyyyy), "dd-MM-yyyy"); }

}  // namespace

FormView::FormView(core::Form& form, QWidget* parent) : QWidget(parent), form_(form) {
    setObjectName(q(form.Name));
    views()[&form_] = this;
    build();
    push();
}

FormView::~FormView() {
    for (auto& [name, t] : timers_) t->stop();
    views().erase(&form_);
}

FormView* FormView::of(core::Form& f) {
    auto it = views().find(&f);
    return it == views().end() ? nullptr : it->second;
}

QWidget* FormView::widget(const std::string& name) const {
    auto it = widgets_.find(name);
    return it == widgets_.end() ? nullptr : it->second;
}

void FormView::build() {
    auto* outer = new QVBoxLayout(this);
    auto* body = new QWidget(this);
    grid_ = new QGridLayout(body);
    containers_[""] = grid_;
    outer->addWidget(body);
    outer->addStretch(1);

    // Menus first: drop-downs of the bar, then their entries.
    for (Control* c : form_.controls()) {
        if (c->kind != Kind::Menu) continue;
        if (!menuBar_) menuBar_ = new QMenuBar(this);
        if (c->Parent.empty()) {
            // A drop-down without entries is a command of the menu bar itself.
            bool hasEntries = false;
            for (Control* e : form_.controls())
                if (e->kind == Kind::Menu && e->Parent == c->Name) hasEntries = true;
            if (!hasEntries) {
                QAction* a = menuBar_->addAction(q(c->Caption));
                a->setObjectName(q(c->Name));
                actions_[c->Name] = a;
                connect(a, &QAction::triggered, this, [this, c] { run(*c, &Control::Click); });
                continue;
            }
            QMenu* m = menuBar_->addMenu(q(c->Caption));
            m->setObjectName(q(c->Name));
            m->setToolTipsVisible(true);
            menus_[c->Name] = m;
        }
    }
    for (Control* c : form_.controls()) {
        if (c->kind != Kind::Menu || c->Parent.empty()) continue;
        auto pm = menus_.find(c->Parent);
        if (pm == menus_.end()) continue;
        QAction* a = pm->second->addAction(q(c->Caption));
        a->setObjectName(q(c->Name));
        actions_[c->Name] = a;
        connect(a, &QAction::triggered, this, [this, c] { run(*c, &Control::Click); });
    }
    // Frames are made before the controls inside them.
    for (Control* c : form_.controls())
        if (c->kind == Kind::Frame) make(*c);
    // Label controls shown as another control's label are placed with that control.
    for (Control* c : form_.controls())
        if (!c->LabelControl.empty()) buddies_.insert(c->LabelControl);
    // Controls with a row of their own first, so that a control without one goes below them.
    std::vector<Control*> order(form_.controls().begin(), form_.controls().end());
    std::stable_partition(order.begin(), order.end(), [](Control* c) { return c->LayoutRow >= 0; });
    for (Control* c : order) {
        if (c->kind == Kind::Menu) continue;
        if (c->kind == Kind::Frame) {
            place(*c, widget(c->Name));
            continue;
        }
        if (buddies_.count(c->Name)) {
            if (!widget(c->Name)) make(*c);
            continue;
        }
        if (c->kind == Kind::Timer) {
            auto* t = new QTimer(this);
            t->setObjectName(q(c->Name));
            timers_[c->Name] = t;
            connect(t, &QTimer::timeout, this, [this, c] { run(*c, &Control::Tick); });
            continue;
        }
        place(*c, make(*c));
    }
    grid_->setColumnStretch(grid_->columnCount(), 1);
    // A frame taller than its controls keeps them at its top, unless it holds a control that
    // grows with the frame (a grid, a list, a text of several lines).
    std::function<bool(const std::string&)> grows = [&](const std::string& frame) {
        for (Control* c : form_.controls()) {
            if (c->Container != frame) continue;
            if (c->kind == Kind::Grid || c->kind == Kind::ListBox || c->MultiLine) return true;
            if (c->kind == Kind::Frame && grows(c->Name)) return true;
        }
        return false;
    };
    for (auto& [name, g] : containers_)
        if (!name.empty() && !grows(name)) g->setRowStretch(g->rowCount(), 1);
}

QWidget* FormView::make(Control& c) {
    QWidget* w = nullptr;
    switch (c.kind) {
    case Kind::Label: {
        auto* l = new QLabel(this);
        l->setTextInteractionFlags(Qt::TextSelectableByMouse);
        if (c.Mono) l->setFont(monoFont());
        if (c.Mono) l->setFont(monoFont());
        w = l;
        break;
    }
    case Kind::TextBox:
        if (c.MultiLine) {
            auto* e = new QPlainTextEdit(this);
            // A width in characters and, in Rows, the number of lines shown.
            QFontMetrics fm(e->font());
            if (c.Width > 0) e->setMinimumWidth(fm.horizontalAdvance('0') * (c.Width + 2));
            if (c.Rows > 0) e->setMinimumHeight(fm.lineSpacing() * (c.Rows + 1));
            connect(e, &QPlainTextEdit::textChanged, this, [this, &c] {
                if (!busy_) run(c, &Control::Change);
            });
            w = e;
        } else {
            auto* e = new QLineEdit(this);
            if (c.Password) e->setEchoMode(QLineEdit::Password);
            if (c.Width > 0) {
                QFontMetrics fm(e->font());
                e->setMinimumWidth(fm.horizontalAdvance('0') * (c.Width + 2));
                if (c.Width <= 14) e->setMaximumWidth(fm.horizontalAdvance('0') * (c.Width + 6));
            }
            connect(e, &QLineEdit::returnPressed, this, [this, &c] { run(c, &Control::KeyEnter); });
            connect(e, &QLineEdit::textEdited, this, [this, &c] { run(c, &Control::Change); });
            w = e;
        }
        w->installEventFilter(this);
        filtered_[w] = &c;
        break;
    case Kind::CommandButton: {
        auto* b = new QPushButton(this);
        b->setAutoDefault(false);
        connect(b, &QPushButton::clicked, this, [this, &c] { run(c, &Control::Click); });
        w = b;
        break;
    }
    case Kind::CheckBox: {
        auto* b = new QCheckBox(this);
        connect(b, &QCheckBox::clicked, this, [this, &c] { run(c, &Control::Click); });
        w = b;
        break;
    }
    case Kind::OptionButton: {
        auto* b = new QRadioButton(this);
        b->setAutoExclusive(false);  // the screen keeps the options of a container exclusive
        connect(b, &QRadioButton::clicked, this, [this, &c](bool) {
            pull();
            form_.setOption(c);
            run(c, &Control::Click);
        });
        w = b;
        break;
    }
    case Kind::ListBox: {
        auto* l = new QListWidget(this);
        if (c.Mono) l->setFont(monoFont());
        // A width in characters; a list of several lines (MultiLine) shows a page of them.
        if (c.Width > 0)
            l->setMinimumWidth(QFontMetrics(l->font()).horizontalAdvance(QString(c.Width + 2, '0')) +
                               l->verticalScrollBar()->sizeHint().width() + 2 * l->frameWidth());
        if (c.MultiLine) l->setMinimumHeight(QFontMetrics(l->font()).lineSpacing() * 30);
        connect(l, &QListWidget::currentRowChanged, this, [this, &c](int) {
            if (!busy_) run(c, &Control::Click);
        });
        connect(l, &QListWidget::itemDoubleClicked, this, [this, &c](QListWidgetItem*) { run(c, &Control::DblClick); });
        w = l;
        break;
    }
    case Kind::ComboBox: {
        auto* cb = new QComboBox(this);
        if (c.Mono) cb->setFont(monoFont());
        cb->setSizeAdjustPolicy(QComboBox::AdjustToContents);
        cb->setEditable(c.Editable);
        if (c.Width > 0) cb->setMinimumWidth(QFontMetrics(cb->font()).horizontalAdvance('0') * (c.Width + 4));
        connect(cb, &QComboBox::activated, this, [this, &c](int) { run(c, &Control::Click); });
        w = cb;
        break;
    }
    case Kind::Frame: {
        auto* g = new QGroupBox(this);
        containers_[c.Name] = new QGridLayout(g);
        w = g;
        break;
    }
    case Kind::Grid: {
        auto* t = new QTableWidget(this);
        t->setEditTriggers(QAbstractItemView::NoEditTriggers);
        t->verticalHeader()->setVisible(false);
        t->setSelectionBehavior(QAbstractItemView::SelectItems);
        if (c.Mono) t->setFont(monoFont());
        t->verticalHeader()->setDefaultSectionSize(QFontMetrics(t->font()).height() + 8);
        // A grid whose rows are known when the screen is made shows them all, up to 20.
        const int wiersz = QFontMetrics(t->font()).height() + 8;
        t->setMinimumHeight(std::max(QFontMetrics(t->font()).height() * 16, std::min(std::max(c.Rows, c.VisibleRows + 1), 21) * wiersz + 12));
        if (c.Width > 0) t->setMinimumWidth(QFontMetrics(t->font()).horizontalAdvance('0') * c.Width);
        connect(t, &QTableWidget::cellClicked, this, [this, &c](int, int) { run(c, &Control::Click); });
        connect(t, &QTableWidget::cellDoubleClicked, this, [this, &c](int, int) { run(c, &Control::DblClick); });
        connect(t->horizontalHeader(), &QHeaderView::sectionClicked, this, [this, &c, t](int col) {
            t->setCurrentCell(0, col);
            pull();
            c.Row = 0;
            c.Col = col;
            run(c, &Control::Click);
        });
        w = t;
        break;
    }
    case Kind::ProgressBar: w = new QProgressBar(this); break;
    case Kind::TabStrip: {
        auto* tb = new QTabBar(this);
        tb->setExpanding(false);
        connect(tb, &QTabBar::currentChanged, this, [this, &c](int) {
            if (!busy_) run(c, &Control::Click);
        });
        w = tb;
        break;
    }
    case Kind::MonthView: {
        auto* cal = new QCalendarWidget(this);
        cal->setFirstDayOfWeek(Qt::Monday);
        cal->setGridVisible(true);
        cal->setLocale(QLocale(QLocale::Polish, QLocale::Poland));
        cal->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
        connect(cal, &QCalendarWidget::clicked, this, [this, &c](QDate) { run(c, &Control::Click); });
        w = cal;
        break;
    }
    case Kind::FolderTree: {
        // The model reads nothing until the control is shown with a folder (see pushOne): the
        // tree is rooted there, so a start with the control hidden does not walk the disk.
        auto* tree = new QTreeView(this);
        auto* model = new QFileSystemModel(tree);
        model->setFilter(QDir::AllDirs | QDir::NoDotAndDotDot);
        tree->setModel(model);
        tree->setRootIsDecorated(true);
        tree->setToolTip("Podfoldery wskazanego folderu; inne miejsce wybierz w polu Dysk");
        for (int i = 1; i < model->columnCount(); ++i) tree->hideColumn(i);
        tree->setHeaderHidden(true);
        tree->setMinimumHeight(160);
        connect(tree, &QTreeView::clicked, this, [this, &c](const QModelIndex&) { run(c, &Control::Change); });
        w = tree;
        break;
    }
    case Kind::Menu:
    case Kind::Timer: break;
    }
    if (w) {
        w->setObjectName(q(c.Name));
        widgets_[c.Name] = w;
    }
    return w;
}

void FormView::place(Control& c, QWidget* w) {
    if (!w) return;
    auto it = containers_.find(c.Container);
    QGridLayout* g = it == containers_.end() ? grid_ : it->second;
    int& next = nextRow_[c.Container];
    int row = c.LayoutRow >= 0 ? c.LayoutRow : next;
    next = std::max(next, row + std::max(1, c.LayoutRowSpan));
    int col = c.LayoutSlot * 2;
    int span = c.LayoutSpan * 2;
    if (!c.LabelControl.empty()) {
        QWidget* l = widget(c.LabelControl);
        if (!l) {
            if (Control* lc = form_.find(c.LabelControl)) l = make(*lc);
        }
        if (l) {
            g->addWidget(l, row, col, Qt::AlignRight | Qt::AlignVCenter);
            g->addWidget(w, row, col + 1, 1, span - 1);
            return;
        }
    }
    if (!c.Label.empty()) {
        auto* l = new QLabel(labelText(c.Label), this);
        l->setObjectName(q(c.Name + "_label"));
        l->setBuddy(w);
        if (core_len(c.Label) > 40) {
            // A long label wraps within a fixed width and keeps the height of its lines.
            l->setWordWrap(true);
            l->setFixedWidth(300);
            l->setMinimumHeight(l->heightForWidth(300));
        }
        labels_[c.Name] = l;
        g->addWidget(l, row, col, Qt::AlignRight | Qt::AlignVCenter);
        g->addWidget(w, row, col + 1, 1, span - 1);
    } else {
        g->addWidget(w, row, col, std::max(1, c.LayoutRowSpan), span);
    }
}

void FormView::pushOne(Control& c, QWidget* w) {
    QSignalBlocker block(w);
    w->setVisible(c.Visible);
    w->setEnabled(c.Enabled);
    w->setToolTip(q(c.ToolTipText));
    if (auto l = labels_.find(c.Name); l != labels_.end()) l->second->setVisible(c.Visible);
    switch (c.kind) {
    case Kind::Label:
        static_cast<QLabel*>(w)->setText(labelText(c.Caption));
        if (c.BackColor >= 0) {
            w->setAutoFillBackground(true);
            QPalette pal = w->palette();
            pal.setColor(QPalette::Window, vbColor(c.BackColor));
            w->setPalette(pal);
        }
        break;
    case Kind::TextBox:
        if (auto* e = qobject_cast<QLineEdit*>(w)) {
            if (e->text() != q(c.Text)) e->setText(q(c.Text));
            e->setReadOnly(c.Locked);
        } else if (auto* p = qobject_cast<QPlainTextEdit*>(w)) {
            if (p->toPlainText() != q(c.Text)) p->setPlainText(q(c.Text));
            p->setReadOnly(c.Locked);
        }
        break;
    case Kind::CommandButton: static_cast<QPushButton*>(w)->setText(q(c.Caption)); break;
    case Kind::CheckBox: {
        auto* b = static_cast<QCheckBox*>(w);
        b->setText(q(c.Caption));
        b->setChecked(c.Value != 0);
        break;
    }
    case Kind::OptionButton: {
        auto* b = static_cast<QRadioButton*>(w);
        b->setText(q(c.Caption));
        b->setChecked(c.Value != 0);
        break;
    }
    case Kind::ListBox: {
        auto* l = static_cast<QListWidget*>(w);
        bool same = l->count() == static_cast<int>(c.List.size());
        for (int i = 0; same && i < l->count(); ++i) same = l->item(i)->text() == q(c.List[i]);
        if (!same) {
            l->clear();
            for (const auto& s : c.List) l->addItem(q(s));
        }
        if (l->currentRow() != c.ListIndex) l->setCurrentRow(c.ListIndex);
        break;
    }
    case Kind::ComboBox: {
        auto* cb = static_cast<QComboBox*>(w);
        bool same = cb->count() == static_cast<int>(c.List.size());
        for (int i = 0; same && i < cb->count(); ++i) same = cb->itemText(i) == q(c.List[i]);
        if (!same) {
            cb->clear();
            for (const auto& s : c.List) cb->addItem(q(s));
        }
        int idx = c.ListIndex;
        if (idx < 0 && !c.Text.empty()) idx = cb->findText(q(c.Text));
        cb->setCurrentIndex(idx);
        if (c.Editable && cb->currentText() != q(c.Text)) cb->setEditText(q(c.Text));
        else if (idx < 0) cb->setPlaceholderText(q(c.Text));
        break;
    }
    case Kind::Frame: static_cast<QGroupBox*>(w)->setTitle(labelText(c.Caption)); break;
    case Kind::Grid: {
        auto* t = static_cast<QTableWidget*>(w);
        int rows = std::max(0, c.Rows - 1);
        t->setColumnCount(c.Cols);
        t->setRowCount(rows);
        for (int col = 0; col < c.Cols; ++col) {
            t->setHorizontalHeaderItem(col, new QTableWidgetItem(q(c.Rows > 0 ? c.Cells[0][col] : std::string())));
            if (col < static_cast<int>(c.ColWidth.size()))
                t->setColumnWidth(col, QFontMetrics(t->font()).horizontalAdvance('0') * (c.ColWidth[col] + 2));
        }
        for (int r = 1; r < c.Rows; ++r)
            for (int col = 0; col < c.Cols; ++col) {
                QTableWidgetItem* it = t->item(r - 1, col);
                if (!it) t->setItem(r - 1, col, it = new QTableWidgetItem);
                if (it->text() != q(c.Cells[r][col])) it->setText(q(c.Cells[r][col]));
                // A cell's own colour first, else the colour of its row.
                const Control::CellStyle& st = c.Style(r, col);
                if (st.back >= 0)
                    it->setBackground(QBrush(QColor::fromRgb(static_cast<QRgb>(st.back))));
                else if (r < static_cast<int>(c.RowColor.size()) && c.RowColor[r] >= 0)
                    it->setBackground(vbColor(c.RowColor[r]));
                else
                    it->setBackground(QBrush());
                it->setForeground(st.fore < 0 ? QBrush() : QBrush(QColor::fromRgb(static_cast<QRgb>(st.fore))));
                if (it->font().bold() != st.bold) {
                    QFont f = t->font();
                    f.setBold(st.bold);
                    it->setFont(f);
                }
            }
        if (c.Row >= 1 && c.Row < c.Rows) t->setCurrentCell(c.Row - 1, c.Col);
        break;
    }
    case Kind::ProgressBar: {
        auto* p = static_cast<QProgressBar*>(w);
        p->setRange(c.Min, c.Max);
        p->setValue(c.Value);
        break;
    }
    case Kind::TabStrip: {
        auto* tb = static_cast<QTabBar*>(w);
        while (tb->count() > static_cast<int>(c.List.size())) tb->removeTab(tb->count() - 1);
        for (int i = 0; i < static_cast<int>(c.List.size()); ++i) {
            if (i < tb->count())
                tb->setTabText(i, q(c.List[i]));
            else
                tb->addTab(q(c.List[i]));
        }
        if (c.Value >= 1) tb->setCurrentIndex(c.Value - 1);
        break;
    }
    case Kind::MonthView: {
        QDate d = toQDate(c.Text);
        if (d.isValid()) static_cast<QCalendarWidget*>(w)->setSelectedDate(d);
        break;
    }
    case Kind::FolderTree: {
        // A folder picked in the tree stays below its root; any other folder (the data folder,
        // a drive of drvStacjaDyskow) becomes the root, read only then and only that far.
        auto* tree = static_cast<QTreeView*>(w);
        auto* model = static_cast<QFileSystemModel*>(tree->model());
        if (!c.Visible || c.Text.empty()) break;
        const QString folder = QDir::cleanPath(q(c.Text));
        const QString root = model->rootPath();
        const bool ponizej = !root.isEmpty() && (folder == root || folder.startsWith(root.endsWith('/') ? root : root + '/'));
        if (!ponizej) {
            tree->setCurrentIndex(QModelIndex());
            tree->setRootIndex(model->setRootPath(folder));
            break;
        }
        QModelIndex idx = model->index(folder);
        if (idx.isValid() && idx != tree->rootIndex() && idx != tree->currentIndex()) {
            tree->setCurrentIndex(idx);
            tree->scrollTo(idx);
        }
        break;
    }
    case Kind::Menu:
    case Kind::Timer: break;
    }
}

void FormView::push() {
    busy_ = true;
    if (QWidget* top = window(); top && top->isWindow() && top != this) top->setWindowTitle(q(form_.Caption));
    for (Control* c : form_.controls()) {
        if (auto a = actions_.find(c->Name); a != actions_.end()) {
            a->second->setText(q(c->Caption));
            a->second->setEnabled(c->Enabled);
            a->second->setVisible(c->Visible);
            a->second->setToolTip(q(c->ToolTipText));
            continue;
        }
        if (auto m = menus_.find(c->Name); m != menus_.end()) {
            m->second->setTitle(q(c->Caption));
            m->second->setEnabled(c->Enabled);
            continue;
        }
        if (auto t = timers_.find(c->Name); t != timers_.end()) {
            if (c->Enabled && c->Interval > 0) {
                if (!t->second->isActive()) t->second->start(c->Interval);
            } else {
                t->second->stop();
            }
            continue;
        }
        if (QWidget* w = widget(c->Name)) pushOne(*c, w);
    }
    busy_ = false;
}

void FormView::pullOne(Control& c, QWidget* w) {
    switch (c.kind) {
    case Kind::TextBox:
        if (auto* e = qobject_cast<QLineEdit*>(w))
            c.Text = s(e->text());
        else if (auto* p = qobject_cast<QPlainTextEdit*>(w))
            c.Text = s(p->toPlainText());
        break;
    case Kind::CheckBox: c.Value = static_cast<QCheckBox*>(w)->isChecked() ? 1 : 0; break;
    case Kind::OptionButton: c.Value = static_cast<QRadioButton*>(w)->isChecked() ? 1 : 0; break;
    case Kind::ListBox: c.ListIndex = static_cast<QListWidget*>(w)->currentRow(); break;
    case Kind::ComboBox: {
        auto* cb = static_cast<QComboBox*>(w);
        c.ListIndex = cb->currentIndex();
        if (c.ListIndex >= 0 || c.Editable) c.Text = s(cb->currentText());
        break;
    }
    case Kind::Grid: {
        auto* t = static_cast<QTableWidget*>(w);
        if (t->currentRow() >= 0) {
            c.Row = t->currentRow() + 1;
            c.Col = t->currentColumn();
        }
        break;
    }
    case Kind::TabStrip: c.Value = static_cast<QTabBar*>(w)->currentIndex() + 1; break;
    case Kind::MonthView:
        c.Text = s(static_cast<QCalendarWidget*>(w)->selectedDate().toString("dd-MM-yyyy"));
        break;
    case Kind::FolderTree: {
        auto* tree = static_cast<QTreeView*>(w);
        auto* model = static_cast<QFileSystemModel*>(tree->model());
        if (tree->currentIndex().isValid()) c.Text = s(model->filePath(tree->currentIndex()));
        break;
    }
    default: break;
    }
}

void FormView::pull() {
    for (Control* c : form_.controls())
        if (QWidget* w = widget(c->Name)) pullOne(*c, w);
}

void FormView::afterEvent() {
    push();
    if (!form_.FocusTo.empty()) {
        if (QWidget* w = widget(form_.FocusTo)) {
            w->setFocus();
            if (auto* e = qobject_cast<QLineEdit*>(w)) e->selectAll();
        }
        form_.FocusTo.clear();
    }
    if (form_.Unloaded && onUnload) onUnload();
}

void FormView::run(Control& c, std::function<void()> Control::*event) {
    if (busy_) return;
    pull();
    form_.fire(c, event);
    afterEvent();
}

void FormView::runWork(const std::function<void()>& work) {
    pull();
    form_.command(work);
    afterEvent();
}

bool FormView::eventFilter(QObject* watched, QEvent* event) {
    auto it = filtered_.find(watched);
    if (it != filtered_.end()) {
        Control& c = *it->second;
        if (event->type() == QEvent::MouseButtonPress && c.Click) {
            QTimer::singleShot(0, this, [this, &c] { run(c, &Control::Click); });
        } else if (event->type() == QEvent::FocusIn && c.GotFocus) {
            QTimer::singleShot(0, this, [this, &c] { run(c, &Control::GotFocus); });
        } else if (event->type() == QEvent::FocusOut && c.LostFocus) {
            QTimer::singleShot(0, this, [this, &c] { run(c, &Control::LostFocus); });
        }
    }
    return QWidget::eventFilter(watched, event);
}

}  // namespace gui
