#include "HelpDialog.hpp"

#include "Art.hpp"
#include "Catalogue.hpp"
#include "HelpBrowser.hpp"
#include "HelpPages.hpp"
#include "HelpWindow.hpp"
#include "Platform.hpp"
#include "ScreenFit.hpp"
#include "Stage.hpp"

#include <QAction>
#include <QCloseEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPrintDialog>
#include <QPrinter>
#include <QRegularExpression>
#include <QSignalBlocker>
#include <QSplitter>
#include <QStyle>
#include <QTextDocument>
#include <QToolBar>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <QVBoxLayout>

#include <algorithm>

namespace ordwise {
namespace {

constexpr int placeRole = Qt::UserRole;

QString placeOf(const QTreeWidgetItem& item) {
    return item.data(0, placeRole).toString();
}

bool holdsAll(const QString& text, const QStringList& words) {
    return std::all_of(words.begin(), words.end(),
                       [&](const QString& word) { return text.contains(word, Qt::CaseInsensitive); });
}

}  // namespace

HelpDialog::HelpDialog(QWidget* parent, Stage& stage)
    : QDialog(parent),
      stage_(stage),
      search_(new QLineEdit(this)),
      contents_(new QTreeWidget(this)),
      page_(new HelpBrowser(this)) {
    setObjectName(QStringLiteral("frmHelp"));
    setWindowTitle(qstringOf(frmHelp.Caption));
    setWindowFlags(windowFlags() | Qt::WindowMinMaxButtonsHint);
    auto* split = new QSplitter(this);
    split->addWidget(buildSide());
    split->addWidget(buildPage());
    split->setStretchFactor(1, 1);
    split->setChildrenCollapsible(false);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(split);
    fitToScreen(*this, QSize(960, 700));
    split->setSizes({260, 700});
    buildContents();
    connect(contents_, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item) {
        if (item != nullptr) turnTo(placeOf(*item));
    });
    connect(page_, &QTextBrowser::sourceChanged, this, &HelpDialog::followPage);
    connect(page_, &QTextBrowser::backwardAvailable, this, [this](bool on) { back_->setEnabled(on); });
    connect(page_, &QTextBrowser::forwardAvailable, this, [this](bool on) { forward_->setEnabled(on); });
    connect(search_, &QLineEdit::textChanged, this, &HelpDialog::search);
    connect(search_, &QLineEdit::returnPressed, this, &HelpDialog::findNext);
    showChanges();
    page_->setFocus();
}

QWidget* HelpDialog::buildSide() {
    auto* side = new QWidget(this);
    auto* layout = new QVBoxLayout(side);
    auto* caption = new QLabel(QStringLiteral("&Search:"), side);
    caption->setBuddy(search_);
    search_->setObjectName(QStringLiteral("HelpSearch"));
    search_->setPlaceholderText(QStringLiteral("Words, then Enter"));
    search_->setClearButtonEnabled(true);
    contents_->setObjectName(QStringLiteral("HelpContents"));
    contents_->setAccessibleName(QStringLiteral("Contents"));
    contents_->setHeaderHidden(true);
    layout->addWidget(caption);
    layout->addWidget(search_);
    layout->addWidget(contents_);
    auto* toSearch = new QAction(this);
    toSearch->setShortcut(QKeySequence::Find);
    connect(toSearch, &QAction::triggered, search_, [this] {
        search_->setFocus(Qt::ShortcutFocusReason);
        search_->selectAll();
    });
    addAction(toSearch);
    return side;
}

QAction* HelpDialog::addCommand(QToolBar& bar, const char* art, const QString& text, const QList<QKeySequence>& keys) {
    QAction* action = bar.addAction(artIcon(art), text);
    action->setShortcuts(keys);
    action->setToolTip(text + QStringLiteral(" (") + keys.constFirst().toString(QKeySequence::NativeText) +
                       QLatin1Char(')'));
    return action;
}

QWidget* HelpDialog::buildPage() {
    auto* side = new QWidget(this);
    auto* bar = new QToolBar(side);
    back_ = addCommand(*bar, "", QStringLiteral("Back"), {QKeySequence(Qt::ALT | Qt::Key_Left)});
    back_->setIcon(style()->standardIcon(QStyle::SP_ArrowBack));
    forward_ = addCommand(*bar, "", QStringLiteral("Forward"), {QKeySequence(Qt::ALT | Qt::Key_Right)});
    forward_->setIcon(style()->standardIcon(QStyle::SP_ArrowForward));
    back_->setEnabled(false);
    forward_->setEnabled(false);
    connect(back_, &QAction::triggered, page_, &QTextBrowser::backward);
    connect(forward_, &QAction::triggered, page_, &QTextBrowser::forward);
    bar->addSeparator();
    const auto zoomTo = [this](double factor) { return [this, factor] { page_->setZoom(page_->zoom() * factor); }; };
    QAction* larger = addCommand(*bar, "", QStringLiteral("Larger Letters"),
                                 {QKeySequence(Qt::CTRL | Qt::Key_Plus), QKeySequence(Qt::CTRL | Qt::Key_Equal)});
    QAction* smaller =
        addCommand(*bar, "", QStringLiteral("Smaller Letters"), {QKeySequence(Qt::CTRL | Qt::Key_Minus)});
    larger->setIconText(QStringLiteral("A+"));
    smaller->setIconText(QStringLiteral("A-"));
    larger->setIcon({});
    smaller->setIcon({});
    connect(larger, &QAction::triggered, this, zoomTo(1.15));
    connect(smaller, &QAction::triggered, this, zoomTo(1 / 1.15));
    auto* usual = new QAction(this);
    usual->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_0));
    connect(usual, &QAction::triggered, this, [this] { page_->setZoom(1); });
    addAction(usual);
    bar->addSeparator();
    QAction* print = addCommand(*bar, "print", QStringLiteral("Print"), {QKeySequence::Print});
    connect(print, &QAction::triggered, this, &HelpDialog::printPage);
    auto* layout = new QVBoxLayout(side);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(bar);
    layout->addWidget(page_);
    return side;
}

// Pages of the desk, then the families, each with its topics below.
void HelpDialog::buildContents() {
    std::map<std::string_view, std::string_view> parents;
    for (const TreeRow& row : topicTree()) parents.emplace(row.key, row.parent);
    for (const HelpPageRow& row : helpPages()) {
        auto* item = new QTreeWidgetItem(contents_, {qstringOf(row.title)});
        item->setData(0, placeRole, qstringOf(row.file));
        item->setIcon(0, artIcon(row.family.empty() ? "book2" : "book1"));
        plainTexts_[qstringOf(row.file)] =
            HelpBrowser::pageText(qstringOf(row.file)).remove(QRegularExpression(QStringLiteral("<[^>]*>")));
        for (const std::string_view topic : topicNames()) {
            const std::string place = helpPlaceOf(topic);
            if (!place.starts_with(std::string(row.file) + "#")) continue;
            auto* below = new QTreeWidgetItem(item, {qstringOf(topic)});
            below->setData(0, placeRole, qstringOf(place));
        }
    }
}

void HelpDialog::showChanges() {
    if (frmHelp.Place.empty()) return;
    turnTo(qstringOf(frmHelp.Place));
    frmHelp.Place.clear();
}

void HelpDialog::turnTo(const QString& place) {
    const QUrl url(place);
    if (page_->source() != url) page_->setSource(url);
}

// Marks in the contents what is in view, also after Back and behind a link.
void HelpDialog::followPage(const QUrl& page) {
    const QSignalBlocker quiet(contents_);
    const QString place = page.toString();
    QTreeWidgetItem* best = nullptr;
    for (QTreeWidgetItemIterator i(contents_); *i != nullptr; ++i) {
        if (placeOf(**i) == place) best = *i;
        if (best == nullptr && placeOf(**i) == page.fileName()) best = *i;
    }
    if (best == nullptr) return;
    contents_->setCurrentItem(best);
    contents_->scrollToItem(best);
}

// Leaves the pages and topics that hold all the words.
void HelpDialog::search(const QString& words) {
    const QStringList wanted = words.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (int i = 0; i < contents_->topLevelItemCount(); ++i) {
        QTreeWidgetItem* item = contents_->topLevelItem(i);
        bool below = false;
        for (int child = 0; child < item->childCount(); ++child) {
            const bool named = holdsAll(item->child(child)->text(0), wanted);
            item->child(child)->setHidden(!named);
            below = below || named;
        }
        item->setHidden(!below && !holdsAll(plainTexts_[placeOf(*item)], wanted));
        item->setExpanded(below && !wanted.isEmpty());
    }
}

// The next place in the page, or the first page of those found.
void HelpDialog::findNext() {
    const QString words = search_->text().trimmed();
    if (words.isEmpty() || page_->find(words)) return;
    for (QTreeWidgetItemIterator i(contents_, QTreeWidgetItemIterator::NotHidden); *i != nullptr; ++i) {
        if (placeOf(**i) == page_->source().toString()) continue;
        if (!holdsAll((*i)->text(0) + plainTexts_[placeOf(**i)], {words})) continue;
        turnTo(placeOf(**i));
        page_->find(words);
        return;
    }
    page_->moveCursor(QTextCursor::Start);
    page_->find(words);
}

void HelpDialog::printPage() {
    QPrinter printer;
    QPrintDialog dialog(&printer, this);
    if (dialog.exec() == QDialog::Accepted) page_->printOn(printer);
}

void HelpDialog::closeEvent(QCloseEvent* event) {
    event->accept();
    reject();
}

void HelpDialog::reject() {
    stage_.perform([] { platform.windows->unload("frmHelp"); });
}

}  // namespace ordwise
