#include "PracticeTestDialog.hpp"

#include "Art.hpp"
#include "HeadingEdits.hpp"
#include "PracticeTestLogic.hpp"
#include "ScreenFit.hpp"
#include "Stage.hpp"
#include "TopicTree.hpp"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QIntValidator>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTabWidget>
#include <QVBoxLayout>

namespace ordwise {
namespace {

constexpr int keyEnter = 13;

// The keys of a tree by their codes.
int keyCodeOf(int key) {
    switch (key) {
        case Qt::Key_Return:
        case Qt::Key_Enter: return keyEnter;
        case Qt::Key_Left: return 37;
        case Qt::Key_Up: return 38;
        case Qt::Key_Right: return 39;
        case Qt::Key_Down: return 40;
        default: return 0;
    }
}

QComboBox* comboOf(QWidget* parent, ComboControl& control, const QString& name) {
    auto* combo = new QComboBox(parent);
    combo->setObjectName(name);
    for (const std::string& entry : control.List) combo->addItem(qstringOf(entry));
    combo->setCurrentIndex(control.ListIndex);
    QObject::connect(combo, &QComboBox::currentIndexChanged, parent,
                     [&control](int index) { control.ListIndex = index; });
    return combo;
}

QString countedText(int count, const char* one, const char* many) {
    return QStringLiteral("%1 %2").arg(count).arg(QString::fromLatin1(count == 1 ? one : many));
}

}  // namespace

PracticeTestDialog::PracticeTestDialog(QWidget* parent, Stage& stage)
    : QDialog(parent),
      stage_(stage),
      search_(new QLineEdit(this)),
      tabs_(new QTabWidget(this)),
      tree_(new TopicTree(this, frmPracticeTest.TreeView1)),
      list_(new QListWidget(this)),
      news_(new QLabel(this)),
      summary_(new QLabel(this)) {
    setObjectName(QStringLiteral("frmPracticeTest"));
    setWindowTitle(QStringLiteral("Practice Test"));
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    auto* plan = new QWidget(this);
    auto* right = new QVBoxLayout(plan);
    right->setContentsMargins(0, 0, 0, 0);
    right->addWidget(outline(), 1);
    auto* lower = new QHBoxLayout;
    lower->addWidget(new HeadingEdits(this, {&frmPracticeTest.Text1, &frmPracticeTest.Text2, &frmPracticeTest.Text3}),
                     1);
    lower->addWidget(variants());
    right->addLayout(lower);
    auto* columns = new QHBoxLayout;
    columns->addWidget(topics(), 2);
    columns->addWidget(new RoomyScroll(plan, this), 3);
    auto* buttons = new QDialogButtonBox(this);
    QPushButton* create = buttons->addButton(QStringLiteral("Create &Practice Test"), QDialogButtonBox::AcceptRole);
    create->setObjectName(QStringLiteral("Command2"));
    create->setDefault(true);
    QPushButton* cancel = buttons->addButton(qstringOf(frmPracticeTest.Command1.Text), QDialogButtonBox::RejectRole);
    cancel->setObjectName(QStringLiteral("Command1"));
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(columns, 1);
    layout->addWidget(buttons);
    fitToScreen(*this, QSize(940, 640));

    fillList();
    connectTopics();
    connect(buttons, &QDialogButtonBox::accepted, this, [this] { stage_.perform(PracticeCommand2_Click); });
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    showChanges();
    search_->setFocus();
}

QWidget* PracticeTestDialog::topics() {
    auto* group = new QGroupBox(QStringLiteral("Topics"), this);
    search_->setObjectName(QStringLiteral("search"));
    search_->setPlaceholderText(QStringLiteral("Search; Enter takes the best match"));
    search_->setAccessibleName(QStringLiteral("Search a topic"));
    search_->setClearButtonEnabled(true);
    tree_->setAccessibleName(QStringLiteral("Topics by subject"));
    list_->setObjectName(QStringLiteral("IndexList"));
    list_->setAccessibleName(QStringLiteral("Topics in alphabetical order"));
    tabs_->setObjectName(QStringLiteral("topics"));
    tabs_->addTab(tree_, QStringLiteral("By &subject"));
    tabs_->addTab(list_, QStringLiteral("&Alphabetical"));
    auto* layout = new QVBoxLayout(group);
    layout->addWidget(search_);
    layout->addWidget(tabs_);
    news_->setObjectName(QStringLiteral("Label1"));
    news_->setWordWrap(true);
    layout->addWidget(news_);
    return group;
}

QWidget* PracticeTestDialog::outline() {
    auto* group = new QGroupBox(QStringLiteral("Test Outline"), this);
    auto* layout = new QVBoxLayout(group);
    auto* grid = new QGridLayout;
    grid->setColumnStretch(1, 1);
    grid->addWidget(new QLabel(QStringLiteral("Topic"), group), 0, 1);
    grid->addWidget(new QLabel(QStringLiteral("Number of Problems "), group), 0, 2, 1, 2);
    for (int number = 0; number <= PracticeTestWindow::lastSection; ++number) addSection(number, *grid);
    layout->addLayout(grid);
    layout->addStretch();
    summary_->setObjectName(QStringLiteral("summary"));
    layout->addWidget(summary_);
    return group;
}

void PracticeTestDialog::addSection(int number, QGridLayout& grid) {
    const QString place = QStringLiteral(" of section %1").arg(number + 1);
    const auto named = [&](const char* control) {
        return QStringLiteral("%1_%2").arg(QLatin1String(control)).arg(number);
    };
    Section& section = sections_[static_cast<std::size_t>(number)];
    section.topic = new QLineEdit(this);
    section.topic->setObjectName(named("Text4"));
    section.topic->setReadOnly(true);
    section.topic->setFocusPolicy(Qt::ClickFocus);
    section.topic->setAccessibleName(QStringLiteral("Topic") + place);
    section.count = comboOf(this, frmPracticeTest.Combo1[number], named("Combo1"));
    section.count->setAccessibleName(QStringLiteral("Number of problems") + place);
    connect(section.count, &QComboBox::currentIndexChanged, this, [this] { showOutline(); });
    section.complex = new QCheckBox(qstringOf(frmPracticeTest.Check1[number].Text), this);
    section.complex->setObjectName(named("Check1"));
    section.complex->setAccessibleName(QStringLiteral("Complex problems") + place);
    connect(section.complex, &QCheckBox::toggled, this,
            [number](bool checked) { frmPracticeTest.Check1[number].Checked = checked; });
    section.clear = new QPushButton(qstringOf(frmPracticeTest.Command4[number].Text), this);
    section.clear->setObjectName(named("Command4"));
    section.clear->setAutoDefault(false);
    section.clear->setAccessibleName(QStringLiteral("Clear the topic") + place);
    connect(section.clear, &QPushButton::clicked, this,
            [this, number] { stage_.perform([number] { PracticeCommand4_Click(number); }); });
    const int row = number + 1;
    grid.addWidget(new QLabel(QString::number(row), this), row, 0, Qt::AlignRight | Qt::AlignVCenter);
    grid.addWidget(section.topic, row, 1);
    grid.addWidget(section.count, row, 2);
    grid.addWidget(section.complex, row, 3);
    grid.addWidget(section.clear, row, 4);
}

QWidget* PracticeTestDialog::variants() {
    auto* group = new QGroupBox(QStringLiteral("Answers, Versions and Paper"), this);
    auto* form = new QFormLayout(group);
    form->addRow(QStringLiteral("Answer &key"), comboOf(this, frmPracticeTest.AnswerKey, QStringLiteral("AnswerKey")));
    form->addRow(QStringLiteral("&Versions"), comboOf(this, frmPracticeTest.Versions, QStringLiteral("Versions")));
    auto* seed = new QLineEdit(qstringOf(frmPracticeTest.Seed.Text), group);
    seed->setObjectName(QStringLiteral("Seed"));
    seed->setValidator(new QIntValidator(0, 999999999, seed));
    seed->setPlaceholderText(QStringLiteral("a new test each time"));
    seed->setToolTip(QStringLiteral("The seed stands at the foot of a test and brings the same test again."));
    connect(seed, &QLineEdit::textChanged, this,
            [](const QString& text) { frmPracticeTest.Seed.Text = text.toStdString(); });
    form->addRow(QStringLiteral("S&eed"), seed);
    form->addRow(QStringLiteral("&Work space"), comboOf(this, frmPracticeTest.Space, QStringLiteral("Space")));
    form->addRow(QStringLiteral("C&olumns"), comboOf(this, frmPracticeTest.Columns, QStringLiteral("Columns")));
    auto* name = new QCheckBox(QStringLiteral("&Name line"), group);
    name->setObjectName(QStringLiteral("NameLine"));
    name->setChecked(frmPracticeTest.NameLine.Checked);
    name->setToolTip(QStringLiteral("Room for name, date and class above the heading of a test"));
    connect(name, &QCheckBox::toggled, this, [](bool checked) { frmPracticeTest.NameLine.Checked = checked; });
    form->addRow(name);
    return group;
}

void PracticeTestDialog::fillList() {
    for (const PracticeTestWindow::ListItem& row : frmPracticeTest.IndexList) {
        auto* item = new QListWidgetItem(qstringOf(row.Text), list_);
        item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
        item->setCheckState(Qt::Unchecked);
    }
}

void PracticeTestDialog::connectTopics() {
    for (QWidget* widget : std::initializer_list<QWidget*>{search_, tree_, tree_->viewport(), list_, list_->viewport()})
        widget->installEventFilter(this);
    tabs_->setCurrentIndex(frmPracticeTest.SSTab1);
    connect(tabs_, &QTabWidget::currentChanged, this, [](int tab) { frmPracticeTest.SSTab1 = tab; });
    connect(search_, &QLineEdit::textChanged, this, [this](const QString& typed) {
        stage_.perform([&typed] { PracticeSearch_Change(typed.toStdString()); });
        tree_->showFound(frmPracticeTest.TreeView1, !typed.isEmpty());
        tree_->mark(frmPracticeTest.Found);
    });
    connect(tree_, &QTreeWidget::itemClicked, this, [this](QTreeWidgetItem* item) {
        if (item->childCount() > 0) item->setExpanded(!item->isExpanded());
        stage_.perform([item] { PracticeTree_NodeClick(item->text(0).toStdString()); });
    });
    connect(list_, &QListWidget::itemChanged, this, [this](QListWidgetItem* item) {
        boxClicked_ = true;
        stage_.perform([this, item] { PracticeIndexList_ItemCheck(list_->row(item)); });
    });
    connect(list_, &QListWidget::itemClicked, this, [this](QListWidgetItem* item) {
        if (boxClicked_) return;
        stage_.perform([this, item] { PracticeIndexList_ItemCheck(list_->row(item)); });
    });
}

bool PracticeTestDialog::eventFilter(QObject* watched, QEvent* event) {
    const bool pressed = event->type() == QEvent::MouseButtonPress;
    if (pressed && watched == tree_->viewport()) PracticeTree_MouseDown();
    if (pressed && watched == list_->viewport()) boxClicked_ = false;
    if (event->type() == QEvent::KeyPress) return keyInTopics(watched, static_cast<QKeyEvent*>(event)->key());
    return QDialog::eventFilter(watched, event);
}

// True for a key that is done with; all others go on to the widget.
bool PracticeTestDialog::keyInTopics(QObject* watched, int key) {
    const int code = keyCodeOf(key);
    if (watched == search_) {
        if (code == keyEnter) {
            stage_.perform(PracticeSearch_Enter);
            search_->selectAll();
        }
        if (key == Qt::Key_Down) tabs_->currentWidget()->setFocus();
        return code == keyEnter || key == Qt::Key_Down;
    }
    if (watched == tree_ && tree_->currentItem() != nullptr) {
        QTreeWidgetItem* item = tree_->currentItem();
        if (code == keyEnter && item->childCount() > 0) item->setExpanded(!item->isExpanded());
        stage_.perform([&] { PracticeTree_KeyDown(code, item->text(0).toStdString()); });
    }
    if (watched == list_ && code == keyEnter && list_->currentRow() >= 0)
        stage_.perform([this] { PracticeIndexList_ItemCheck(list_->currentRow()); });
    return code == keyEnter;
}

void PracticeTestDialog::showChanges() {
    setCursor(frmMain.MousePointer == 0 ? Qt::ArrowCursor : Qt::WaitCursor);
    const QSignalBlocker quiet(list_);
    for (int i = 0; i < list_->count(); ++i) {
        const PracticeTestWindow::ListItem& row = frmPracticeTest.IndexList[static_cast<std::size_t>(i)];
        const bool checked = row.Checked;
        list_->item(i)->setHidden(!row.Shown);
        if (row.Text == frmPracticeTest.Found) list_->setCurrentRow(i);
        list_->item(i)->setCheckState(checked ? Qt::Checked : Qt::Unchecked);
        for (QTreeWidgetItem* item : tree_->findItems(list_->item(i)->text(), Qt::MatchExactly | Qt::MatchRecursive)) {
            QFont face = tree_->font();
            face.setBold(checked);
            item->setFont(0, face);
        }
    }
    news_->setText(qstringOf(frmPracticeTest.Label1.Text));
    news_->setVisible(!frmPracticeTest.Label1.Text.empty());
    showOutline();
}

void PracticeTestDialog::showOutline() {
    int used = 0;
    int problems = 0;
    for (int number = 0; number <= PracticeTestWindow::lastSection; ++number) {
        const Section& section = sections_[static_cast<std::size_t>(number)];
        const QString topic = qstringOf(frmPracticeTest.Text4[number].Text);
        const bool taken = !topic.isEmpty();
        if (section.topic->text() != topic) section.topic->setText(topic);
        section.topic->setCursorPosition(0);
        section.topic->setToolTip(topic);
        section.topic->setEnabled(taken);
        section.complex->setChecked(frmPracticeTest.Check1[number].Checked);
        section.count->setEnabled(taken);
        section.complex->setEnabled(taken);
        section.clear->setEnabled(taken);
        if (!taken) continue;
        ++used;
        problems += frmPracticeTest.Combo1[number].ListIndex + 1;
    }
    const bool full = used == PracticeTestWindow::lastSection + 1;
    summary_->setText(used == 0 ? QStringLiteral("Choose up to ten topics at the left.")
                                : countedText(problems, "problem", "problems") + QStringLiteral(" in ") +
                                      countedText(used, "section", "sections") +
                                      (full ? QStringLiteral(".  All sections are taken.") : QStringLiteral(".")));
}

void PracticeTestDialog::reject() {
    if (frmPracticeTest.Loaded) {
        stage_.perform(PracticeCommand1_Click);
    } else {
        QDialog::reject();
    }
}

}  // namespace ordwise
