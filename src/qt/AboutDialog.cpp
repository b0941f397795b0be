#include "AboutDialog.hpp"

#include "AboutLogic.hpp"
#include "Art.hpp"
#include "ScreenFit.hpp"
#include "Stage.hpp"
#include "StartWindows.hpp"

#include <QClipboard>
#include <QDialogButtonBox>
#include <QFile>
#include <QGuiApplication>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace ordwise {
namespace {

constexpr const char* about =
    "A tutor and solver for school mathematics: one step a line, and a reason for every step.\n\n"
    "Ordwise is free software under the MIT licence. You may use, share and change it; it comes without any "
    "warranty.\n\n"
    "Made with Qt (LGPL 3), CLI11 (BSD), nlohmann-json (MIT) and Boost (BSL); Licences shows the notices of what is "
    "compiled in. The pictures and the signs of mathematics are drawn for Ordwise, the letters come from the fonts of "
    "your system.";

// The very text that is installed with the packages.
QString notices() {
    QFile file(QStringLiteral(":/copyright"));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

}  // namespace

AboutDialog::AboutDialog(QWidget* parent, Stage& stage)
    : QDialog(parent), stage_(stage), facts_(new QPlainTextEdit(this)) {
    setObjectName(QStringLiteral("frmAbout"));
    setWindowTitle(qstringOf(frmAbout.Caption));
    auto* told = new QWidget(this);
    auto* column = new QVBoxLayout(told);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(12);
    addHead(*column);
    auto* text = new QLabel(QString::fromLatin1(about), this);
    text->setWordWrap(true);
    text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    text->setMinimumWidth(400);
    column->addWidget(text);
    facts_->setObjectName(QStringLiteral("SystemInformation"));
    facts_->setReadOnly(true);
    facts_->setLineWrapMode(QPlainTextEdit::NoWrap);
    facts_->setTabChangesFocus(true);
    facts_->setMinimumHeight(facts_->fontMetrics().height() * 13);
    column->addWidget(facts_);
    auto* layout = new QVBoxLayout(this);
    layout->setSpacing(12);
    scroll_ = new RoomyScroll(told, this);
    layout->addWidget(scroll_);
    addButtons(*layout);
    showChanges();
}

void AboutDialog::addHead(QVBoxLayout& layout) {
    auto* row = new QHBoxLayout;
    row->setSpacing(16);
    auto* picture = new QLabel(this);
    picture->setPixmap(artPixmap("ordwise", QSizeF(72, 72), devicePixelRatioF()));
    row->addWidget(picture);
    auto* words = new QVBoxLayout;
    auto* title = new QLabel(qstringOf(frmAbout.lblTitle.Text), this);
    QFont large = title->font();
    large.setPointSizeF(large.pointSizeF() * 2);
    large.setBold(true);
    title->setFont(large);
    auto* version = new QLabel(qstringOf(frmAbout.lblVersion.Text), this);
    version->setObjectName(QStringLiteral("lblVersion"));
    words->addWidget(title);
    words->addWidget(version);
    row->addLayout(words, 1);
    layout.addLayout(row);
}

void AboutDialog::addButtons(QVBoxLayout& layout) {
    auto* buttons = new QDialogButtonBox(this);
    auto* info = buttons->addButton(qstringOf("&" + frmAbout.cmdSysInfo.Text), QDialogButtonBox::ActionRole);
    info->setObjectName(QStringLiteral("cmdSysInfo"));
    copy_ = buttons->addButton(QStringLiteral("&Copy"), QDialogButtonBox::ActionRole);
    copy_->setObjectName(QStringLiteral("Copy"));
    copy_->setToolTip(QStringLiteral("Copy the text above"));
    auto* licences = buttons->addButton(QStringLiteral("&Licences"), QDialogButtonBox::ActionRole);
    licences->setObjectName(QStringLiteral("Licences"));
    auto* ok = buttons->addButton(qstringOf(frmAbout.Command1.Text), QDialogButtonBox::AcceptRole);
    ok->setObjectName(QStringLiteral("Command1"));
    ok->setDefault(true);
    ok->setFocus();
    connect(info, &QPushButton::clicked, this, [this] {
        noticesShown_ = false;
        stage_.perform(StartSysInfo);
    });
    connect(licences, &QPushButton::clicked, this, [this] {
        noticesShown_ = true;
        showChanges();
        facts_->setFocus();
    });
    connect(copy_, &QPushButton::clicked, this,
            [this] { QGuiApplication::clipboard()->setText(facts_->toPlainText()); });
    connect(ok, &QPushButton::clicked, this, [this] { stage_.perform(About_Command1_Click); });
    layout.addWidget(buttons);
}

void AboutDialog::showChanges() {
    const QString facts = noticesShown_ ? notices() : qstringOf(frmAbout.SystemInformation);
    facts_->setAccessibleName(noticesShown_ ? QStringLiteral("Licences") : QStringLiteral("System information"));
    if (facts_->toPlainText() != facts) facts_->setPlainText(facts);
    facts_->setVisible(!facts.isEmpty());
    copy_->setVisible(!facts.isEmpty());
    // The room is asked for with the text in it, and not as it was before.
    facts_->parentWidget()->layout()->activate();
    scroll_->updateGeometry();
    layout()->activate();
    constexpr int usualWidth = 520;
    const int width = std::max(usualWidth, sizeHint().width());
    fitToScreen(*this, QSize(width, hasHeightForWidth() ? heightForWidth(width) : sizeHint().height()));
}

}  // namespace ordwise
