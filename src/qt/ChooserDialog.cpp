#include "ChooserDialog.hpp"

#include "Art.hpp"
#include "ChooserLogic.hpp"
#include "ChooserWindow.hpp"

#include <QKeyEvent>
#include <QLabel>
#include <QSignalBlocker>
#include <QTabBar>
#include <QVBoxLayout>

#include <map>

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
      tree_(new QTreeWidget(this)),
      list_(new QListWidget(this)) {
    setObjectName(QStringLiteral("frmSelect"));
    setWindowTitle(QStringLiteral("New Problem"));
    auto* caption = new QLabel(qstringOf("&" + frmSelect.Label1.Text), this);
    caption->setBuddy(text_);
    text_->setObjectName(QStringLiteral("Text1"));
    text_->setPlaceholderText(QStringLiteral("Type the beginning of a name"));
    text_->setClearButtonEnabled(true);
    tree_->setHeaderHidden(true);
    tree_->setObjectName(QStringLiteral("TreeView1"));
    tree_->setAccessibleName(QStringLiteral("Problem types by subject"));
    list_->setObjectName(QStringLiteral("IndexList"));
    list_->setAccessibleName(QStringLiteral("Problem types in alphabetical order"));
    tabs_->addTab(tree_, QStringLiteral("By &subject"));
    tabs_->addTab(list_, QStringLiteral("&Alphabetical"));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(caption);
    layout->addWidget(text_);
    layout->addWidget(tabs_);
    resize(460, 560);
    setTabOrder(text_, tabs_);

    buildTree();
    for (const std::string& name : frmSelect.IndexList.List) list_->addItem(qstringOf(name));
    showChanges();
    text_->setFocus();
    for (QWidget* widget : std::initializer_list<QWidget*>{text_, tree_, list_, tabs_->tabBar()})
        widget->installEventFilter(this);

    connect(text_, &QLineEdit::textEdited, this, [this](const QString& typed) {
        SelectText_Change(typed.toStdString());
        showChanges();
    });
    connect(tree_, &QTreeWidget::itemClicked, this, [this](QTreeWidgetItem* item) {
        TreeView_NodeClick(item->text(0).toStdString());
        if (!finishIfChosen()) item->setExpanded(!item->isExpanded());
    });
    connect(list_, &QListWidget::currentRowChanged, this, [](int row) {
        if (row >= 0) IndexList_Click(row);
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

void ChooserDialog::buildTree() {
    std::map<std::string, QTreeWidgetItem*> headings;
    for (const ChooserWindow::Node& node : frmSelect.TreeView1) {
        QTreeWidgetItem* item =
            node.Parent.empty() ? new QTreeWidgetItem(tree_) : new QTreeWidgetItem(headings.at(node.Parent));
        item->setText(0, qstringOf(node.Text));
        item->setIcon(0, artIcon(node.Image));
        if (!node.Key.empty()) headings.emplace(node.Key, item);
    }
}

void ChooserDialog::showChanges() {
    const QSignalBlocker quietList(list_);
    const QSignalBlocker quietTabs(tabs_);
    const QString typed = qstringOf(frmSelect.Text1.Text);
    if (text_->text() != typed) text_->setText(typed);
    tabs_->setCurrentIndex(frmSelect.SSTab1);
    list_->setCurrentRow(frmSelect.IndexList.ListIndex);
    if (!typed.isEmpty()) revealInTree(qstringOf(selectedTopic()));
}

// What the search has found is also to be seen in the tree.
void ChooserDialog::revealInTree(const QString& name) {
    const auto found = tree_->findItems(name, Qt::MatchExactly | Qt::MatchRecursive);
    if (found.isEmpty()) return;
    tree_->setCurrentItem(found.first());
    tree_->scrollToItem(found.first());
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
        if (key == ChooserKey::Up || key == ChooserKey::Down) {  // the box moves through the list
            const int row = frmSelect.IndexList.ListIndex + (key == ChooserKey::Down ? 1 : -1);
            if (row >= 0 && row < list_->count()) IndexList_Click(row);
            IndexList_KeyUp();
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
