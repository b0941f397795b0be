#include "PrintSetupDialog.hpp"

#include "Art.hpp"
#include "HeadingEdits.hpp"
#include "PrintWindows.hpp"
#include "Printing.hpp"
#include "ScreenFit.hpp"
#include "Stage.hpp"
#include "StatusLine.hpp"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace ordwise {
namespace {

void showCheck(QCheckBox& box, const Control& control) {
    box.setEnabled(control.Enabled);
    box.setChecked(control.Checked);
}

}  // namespace

PrintSetupDialog::PrintSetupDialog(QWidget* parent, Stage& stage)
    : QDialog(parent),
      stage_(stage),
      graph_(&addCheck(frmPrintSetup.Check1, "Check1", QStringLiteral("&Graph"), frmPrintSetup_Check1_Click)),
      problem_(&addCheck(frmPrintSetup.Check2, "Check2", QStringLiteral("&Problem"), frmPrintSetup_Check2_Click)),
      explanation_(&addCheck(frmPrintSetup.Check3, "Check3", QStringLiteral("&Explanation"), [] {})),
      device_(new QLabel(this)),
      ok_(nullptr),
      preview_(nullptr),
      news_(new StatusLine(this)) {
    setObjectName(QStringLiteral("frmPrintSetup"));
    setWindowTitle(QStringLiteral("Print"));
    frmPrintSetup_Paint();

    auto* what = new QGroupBox(QStringLiteral("What to Print"), this);
    auto* checks = new QVBoxLayout(what);
    checks->addWidget(problem_);
    auto* indented = new QHBoxLayout;
    indented->addSpacing(24);
    indented->addWidget(explanation_);
    checks->addLayout(indented);
    checks->addWidget(graph_);

    auto* where = new QGroupBox(QStringLiteral("Printer Device Name"), this);
    auto* printer = new QHBoxLayout(where);
    auto* setup = new QPushButton(qstringOf("&" + frmPrintSetup.Command3.Text), where);
    setup->setObjectName(QStringLiteral("Command3"));
    setup->setAutoDefault(false);
    device_->setObjectName(QStringLiteral("Label1"));
    printer->addWidget(device_, 1);
    printer->addWidget(setup);

    auto* buttons = new QDialogButtonBox(this);
    ok_ = buttons->addButton(qstringOf(frmPrintSetup.Command2.Text), QDialogButtonBox::AcceptRole);
    ok_->setObjectName(QStringLiteral("Command2"));
    ok_->setDefault(true);
    QPushButton* cancel = buttons->addButton(qstringOf(frmPrintSetup.Command1.Text), QDialogButtonBox::RejectRole);
    cancel->setObjectName(QStringLiteral("Command1"));

    preview_ = buttons->addButton(QStringLiteral("Pre&view..."), QDialogButtonBox::ActionRole);
    preview_->setObjectName(QStringLiteral("Command4"));
    preview_->setAutoDefault(false);

    auto* job = new QWidget(this);
    auto* column = new QVBoxLayout(job);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(new HeadingEdits(this, {&frmPrintSetup.Text1, &frmPrintSetup.Text2, &frmPrintSetup.Text3}));
    column->addWidget(what);
    column->addWidget(where);
    column->addStretch();
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(new RoomyScroll(job, this));
    layout->addWidget(news_);
    layout->addWidget(buttons);
    fitToScreen(*this, QSize(420, sizeHint().height()));

    connect(setup, &QPushButton::clicked, this, [this] { stage_.perform(frmPrintSetup_Command3_Click); });
    connect(preview_, &QPushButton::clicked, this, [this] { stage_.perform(frmPrintSetup_Command4_Click); });
    connect(buttons, &QDialogButtonBox::accepted, this, [this] { stage_.perform(frmPrintSetup_Command2_Click); });
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    showChanges();
    ok_->setFocus();
}

QCheckBox& PrintSetupDialog::addCheck(Control& control, const char* name, const QString& caption, void (*click)()) {
    auto* box = new QCheckBox(caption, this);
    box->setObjectName(QString::fromLatin1(name));
    connect(box, &QCheckBox::clicked, this, [this, &control, click](bool checked) {
        control.Checked = checked;
        stage_.perform(click);
    });
    return *box;
}

void PrintSetupDialog::showChanges() {
    showCheck(*graph_, frmPrintSetup.Check1);
    showCheck(*problem_, frmPrintSetup.Check2);
    showCheck(*explanation_, frmPrintSetup.Check3);
    // An explanation stands under its step and nowhere else.
    explanation_->setEnabled(frmPrintSetup.Check3.Enabled && frmPrintSetup.Check2.Checked);
    device_->setText(qstringOf(frmPrintSetup.Label1.Text));
    ok_->setEnabled(frmPrintSetup.Command2.Enabled);
    preview_->setEnabled(frmPrintSetup.Command4.Enabled);
    news_->showSentence(qstringOf(frmMain.StatusText), !frmMain.StatusText.empty());
}

void PrintSetupDialog::reject() {
    if (frmPrintSetup.Loaded) {
        stage_.perform(frmPrintSetup_Command1_Click);
    } else {
        QDialog::reject();
    }
}

}  // namespace ordwise
