#include "PrintPreviewDialog.hpp"

#include "Art.hpp"
#include "PrintPreview.hpp"
#include "PrintWindows.hpp"
#include "ScreenFit.hpp"
#include "Stage.hpp"
#include "StatusLine.hpp"
#include "Workspace.hpp"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QShortcut>
#include <QSpinBox>
#include <QStyle>
#include <QToolButton>
#include <QVBoxLayout>

namespace ordwise {
namespace {

constexpr int fitPage = 0;  // entries of the list of zooms
constexpr int fitWidth = 1;
constexpr int firstPercent = 2;
constexpr int percents[] = {50, 75, 100, 150, 200};

}  // namespace

PrintPreviewDialog::PrintPreviewDialog(QWidget* parent, Stage& stage)
    : QDialog(parent),
      stage_(stage),
      page_(new PageView(this)),
      back_(&addTurn("Command4", QStringLiteral("&Back"), QStyle::SP_ArrowBack, frmPrintPreview_Command4_Click)),
      forward_(
          &addTurn("Command5", QStringLiteral("&Forward"), QStyle::SP_ArrowForward, frmPrintPreview_Command5_Click)),
      number_(new QSpinBox(this)),
      count_(new QLabel(this)),
      zoom_(new QComboBox(this)),
      device_(new QLabel(this)),
      news_(new StatusLine(this)) {
    setObjectName(QStringLiteral("frmPrintPreview"));
    setWindowTitle(QStringLiteral("Print Preview"));
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    frmPrintPreview_Paint();
    page_->setObjectName(QStringLiteral("Picture1"));
    page_->scaleChanged = [this] { showZoom(); };
    page_->turned = [this](int by) { stage_.perform([by] { showPreviewPage(ws.PreviewPage + by); }); };
    setLayout(new QVBoxLayout);
    addTools();
    layout()->addWidget(page_);
    layout()->addWidget(news_);
    addButtons();
    fitToScreen(*this, QSize(760, 900));
    showChanges();
    page_->setFocus();
}

QToolButton& PrintPreviewDialog::addTurn(const char* name, const QString& caption, int icon, void (*turn)()) {
    auto* button = new QToolButton(this);
    button->setObjectName(QString::fromLatin1(name));
    button->setText(caption);
    button->setIcon(style()->standardIcon(static_cast<QStyle::StandardPixmap>(icon)));
    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    button->setFocusPolicy(Qt::TabFocus);
    connect(button, &QToolButton::clicked, this, [this, turn] { stage_.perform(turn); });
    return *button;
}

void PrintPreviewDialog::addTools() {
    auto* tools = new QHBoxLayout;
    back_->setToolTip(QStringLiteral("Previous page (Page Up)"));
    forward_->setToolTip(QStringLiteral("Next page (Page Down)"));
    number_->setObjectName(QStringLiteral("Label4"));
    number_->setMinimum(1);
    number_->setKeyboardTracking(false);
    auto* caption = new QLabel(QStringLiteral("Pa&ge"), this);
    caption->setBuddy(number_);
    count_->setObjectName(QStringLiteral("Label3"));
    zoom_->setObjectName(QStringLiteral("zoom"));
    zoom_->addItems({QStringLiteral("Fit page"), QStringLiteral("Fit width")});
    for (const int percent : percents) zoom_->addItem(QStringLiteral("%1 %").arg(percent));
    auto* zoomCaption = new QLabel(QStringLiteral("&Zoom"), this);
    zoomCaption->setBuddy(zoom_);
    for (QWidget* widget : std::initializer_list<QWidget*>{back_, caption, number_, count_, forward_})
        tools->addWidget(widget);
    tools->addStretch();
    tools->addWidget(zoomCaption);
    tools->addWidget(zoom_);
    static_cast<QVBoxLayout*>(layout())->addLayout(tools);
    connect(number_, &QSpinBox::valueChanged, this,
            [this](int page) { stage_.perform([page] { showPreviewPage(page - 1); }); });
    connect(zoom_, &QComboBox::activated, this, [this](int entry) { chooseZoom(entry); });
    addShortcuts();
}

void PrintPreviewDialog::addShortcuts() {
    const auto shortcut = [this](const QKeySequence& keys, const std::function<void()>& act) {
        connect(new QShortcut(keys, this), &QShortcut::activated, this, act);
    };
    // Not the button's own shortcut: that would take the place of its underlined letter.
    shortcut(QKeySequence::Print, [this] { stage_.perform(frmPrintPreview_Command1_Click); });
    shortcut(Qt::Key_PageUp, [this] { stage_.perform(frmPrintPreview_Command4_Click); });
    shortcut(Qt::Key_PageDown, [this] { stage_.perform(frmPrintPreview_Command5_Click); });
    shortcut(Qt::Key_Home, [this] { stage_.perform([] { showPreviewPage(0); }); });
    shortcut(Qt::Key_End, [this] { stage_.perform([] { showPreviewPage(ws.PreviewPageCount); }); });
    shortcut(Qt::CTRL | Qt::Key_Plus, [this] { zoomBy(1.2); });
    shortcut(Qt::CTRL | Qt::Key_Equal, [this] { zoomBy(1.2); });
    shortcut(Qt::CTRL | Qt::Key_Minus, [this] { zoomBy(1 / 1.2); });
    shortcut(Qt::CTRL | Qt::Key_0, [this] { chooseZoom(fitPage); });
}

void PrintPreviewDialog::addButtons() {
    auto* foot = new QHBoxLayout;
    device_->setObjectName(QStringLiteral("Label1"));
    device_->setToolTip(QStringLiteral("Printer"));
    const auto add = [&](const QString& caption, const char* name, void (*click)()) {
        auto* button = new QPushButton(caption, this);
        button->setObjectName(QString::fromLatin1(name));
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, [this, click] { stage_.perform(click); });
        foot->addWidget(button);
    };
    foot->addWidget(device_, 1);
    add(QStringLiteral("Print &Setup..."), "Command3", frmPrintPreview_Command3_Click);
    add(QStringLiteral("&Print"), "Command1", frmPrintPreview_Command1_Click);
    add(QStringLiteral("E&xit"), "Command2", frmPrintPreview_Command2_Click);
    static_cast<QVBoxLayout*>(layout())->addLayout(foot);
}

void PrintPreviewDialog::showChanges() {
    if (!frmPrintPreview.Loaded) return;
    const int pages = ws.PreviewPageCount + 1;
    const QSignalBlocker quiet(number_);
    number_->setMaximum(pages);
    number_->setValue(frmPrintPreview.FrontPage + 1);
    number_->setEnabled(pages > 1);
    count_->setText(QStringLiteral("of %1").arg(qstringOf(frmPrintPreview.Label3.Text)));
    back_->setEnabled(frmPrintPreview.Command4.Enabled);
    forward_->setEnabled(frmPrintPreview.Command5.Enabled);
    device_->setText(qstringOf(frmPrintPreview.Label1.Text));
    news_->showSentence(qstringOf(frmPrintPreview.Note), false);
    page_->setAccessibleDescription(QStringLiteral("Page %1 of %2").arg(frmPrintPreview.FrontPage + 1).arg(pages));
    page_->showPage();
    if (shownPage_ != frmPrintPreview.FrontPage) page_->verticalScrollBar()->setValue(0);
    shownPage_ = frmPrintPreview.FrontPage;
}

void PrintPreviewDialog::chooseZoom(int entry) {
    if (entry < firstPercent) {
        page_->setFit(entry == fitPage ? PageView::Fit::Page : PageView::Fit::Width);
    } else {
        page_->setScale(percents[entry - firstPercent] / 100.0);
    }
}

void PrintPreviewDialog::zoomBy(double factor) {
    page_->setScale(page_->scale() * factor);
}

// A zoom that the list does not have leaves the list empty.
void PrintPreviewDialog::showZoom() {
    int entry = page_->fit() == PageView::Fit::Page ? fitPage : page_->fit() == PageView::Fit::Width ? fitWidth : -1;
    for (int i = 0; page_->fit() == PageView::Fit::None && i < static_cast<int>(std::size(percents)); ++i) {
        if (qFuzzyCompare(page_->scale(), percents[i] / 100.0)) entry = firstPercent + i;
    }
    zoom_->setCurrentIndex(entry);
}

void PrintPreviewDialog::reject() {
    if (frmPrintPreview.Loaded) {
        stage_.perform(frmPrintPreview_Command2_Click);
    } else {
        QDialog::reject();
    }
}

}  // namespace ordwise
