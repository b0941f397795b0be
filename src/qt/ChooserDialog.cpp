#include "ChooserDialog.hpp"

#include "Art.hpp"
#include "ChooserLogic.hpp"
#include "ChooserWindow.hpp"
#include "ScreenFit.hpp"

#include <QDialogButtonBox>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTabBar>
#include <QVBoxLayout>

namespace ordwise {
namespace {

ChooserKey chooserKeyOf(const QKeyEvent& event) {
    switch (event.key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter: return ChooserKey::Enter;
        case Qt::Key_Escape: return ChooserKey::Escape;
        case Qt::Key_Up: return ChooserKey::Up;
        case Qt::Key_Down: return ChooserKey::Down;
        case Qt::Key_Right: return ChooserKey::Right;
        default: return ChooserKey::Other;
    }
}

QString textOfCurrent(const QTreeWidget& tree) {
    return tree.currentItem() == nullptr ? QString() : tree.currentItem()->text(0);
}

}  // namespace

ChooserDialog::ChooserDialog(QWidget* parent)
    : QDialog(parent),
      text_(new QLineEdit(this)),
      tabs_(new QTabWidget(this)),
      tree_(new TopicTree(this, frmSelect.TreeView1)),
      list_(new QListWidget(this)),
      news_(new QLabel(this)),
      ok_(nullptr) {
    setObjectName(QStringLiteral("frmSelect"));
    setWindowTitle(QStringLiteral("New Problem"));
    auto* caption = new QLabel(qstringOf("&" + frmSelect.Label1.Text), this);
    caption->setBuddy(text_);
    text_->setObjectName(QStringLiteral("Text1"));
    text_->setPlaceholderText(QStringLiteral("Type a part of a name"));
    text_->setClearButtonEnabled(true);
    tree_->setAccessibleName(QStringLiteral("Problem types by subject"));
    list_->setObjectName(QStringLiteral("IndexList"));
    list_->setAccessibleName(QStringLiteral("Problem types in alphabetical order"));
    tabs_->addTab(tree_, QStringLiteral("By &subject"));
    tabs_->addTab(list_, QStringLiteral("&Alphabetical"));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(caption);
    layout->addWidget(text_);
    layout->addWidget(tabs_);
    news_->setObjectName(QStringLiteral("Label2"));
    layout->addWidget(news_);
    layout->addWidget(buttons());
    fitToScreen(*this, QSize(460, 560));
    setTabOrder(text_, tabs_);

    showChanges();
    text_->setFocus();
    for (QWidget* widget : std::initializer_list<QWidget*>{text_, tree_, list_, tabs_->tabBar()})
        widget->installEventFilter(this);

    connect(text_, &QLineEdit::textEdited, this, [this](const QString& typed) {
        SelectText_Change(typed.toStdString());
        tree_->showFound(frmSelect.TreeView1, !typed.isEmpty());
        showChanges();
    });
    connect(tree_, &QTreeWidget::currentItemChanged, this, [this] {
        TreeView_Mark(textOfCurrent(*tree_).toStdString());
        showChanges();
    });
    connect(tree_, &QTreeWidget::itemClicked, this, [this](QTreeWidgetItem* item) {
        TreeView_NodeClick(item->text(0).toStdString());
        if (!finishIfChosen()) item->setExpanded(!item->isExpanded());
    });
    connect(list_, &QListWidget::currentRowChanged, this, [this](int row) {
        if (row >= 0) IndexList_Click(row);
        showChanges();
    });
    connect(list_, &QListWidget::itemDoubleClicked, this, [this] {
        IndexList_DblClick();
        finishIfChosen();
    });
    connect(tabs_, &QTabWidget::currentChanged, this, [this](int tab) {
        SelectTab_Click(tab);
        text_->setFocus();
    });
}

QWidget* ChooserDialog::buttons() {
    auto* box = new QDialogButtonBox(this);
    ok_ = box->addButton(qstringOf(frmSelect.Command1.Text), QDialogButtonBox::AcceptRole);
    ok_->setObjectName(QStringLiteral("Command1"));
    QPushButton* cancel = box->addButton(qstringOf(frmSelect.Command2.Text), QDialogButtonBox::RejectRole);
    cancel->setObjectName(QStringLiteral("Command2"));
    for (QPushButton* button : {ok_, cancel}) button->setAutoDefault(false);  // Enter is asked of the logic
    ok_->setDefault(true);
    connect(box, &QDialogButtonBox::accepted, this, [this] {
        Select_Command1_Click();
        finishIfChosen();
    });
    connect(box, &QDialogButtonBox::rejected, this, [this] {
        Select_Command2_Click();
        finishIfChosen();
    });
    return box;
}

void ChooserDialog::showChanges() {
    const QSignalBlocker quietList(list_);
    const QSignalBlocker quietTabs(tabs_);
    const QString typed = qstringOf(frmSelect.Text1.Text);
    if (text_->text() != typed) text_->setText(typed);
    tabs_->setCurrentIndex(frmSelect.SSTab1);
    showList();
    tree_->mark(selectedTopic());
    news_->setText(qstringOf(frmSelect.Label2.Text));
    ok_->setEnabled(frmSelect.Command1.Enabled);
}

void ChooserDialog::showList() {
    const std::vector<std::string>& names = frmSelect.IndexList.List;
    bool same = list_->count() == static_cast<int>(names.size());
    for (int i = 0; same && i < list_->count(); ++i)
        same = list_->item(i)->text() == qstringOf(names[static_cast<std::size_t>(i)]);
    if (!same) {
        list_->clear();
        for (const std::string& name : names) list_->addItem(qstringOf(name));
    }
    list_->setCurrentRow(frmSelect.IndexList.ListIndex);
}

bool ChooserDialog::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress) return keyPressed(watched, *static_cast<QKeyEvent*>(event));
    if (event->type() == QEvent::KeyRelease && watched == list_) {
        IndexList_KeyUp();
        showChanges();
    }
    return false;
}

// True for a key that is done with; all others go on to the widget.
bool ChooserDialog::keyPressed(QObject* watched, QKeyEvent& event) {
    const ChooserKey key = chooserKeyOf(event);
    if (watched == text_) {
        SelectText_KeyDown(key);
        if (key == ChooserKey::Up || key == ChooserKey::Down) {
            showChanges();
            return true;
        }
    } else if (watched == list_) {
        IndexList_KeyDown(key);
    } else if (watched == tree_) {
        TreeView_KeyDown(key, textOfCurrent(*tree_).toStdString());
        if (key == ChooserKey::Enter && !finishIfChosen()) {
            if (QTreeWidgetItem* heading = tree_->currentItem()) heading->setExpanded(!heading->isExpanded());
            return true;
        }
    } else {
        SelectTab_KeyDown(key);
    }
    if (finishIfChosen()) return true;
    return key == ChooserKey::Enter;  // no topic there: the chooser stays
}

// The logic has closed the window: by a choice or by Esc.
bool ChooserDialog::finishIfChosen() {
    if (frmSelect.Loaded) return false;
    done(0);
    return true;
}

void ChooserDialog::closeEvent(QCloseEvent* event) {
    if (frmSelect.Loaded) SelectText_KeyDown(ChooserKey::Escape);
    QDialog::closeEvent(event);
}

}  // namespace ordwise
