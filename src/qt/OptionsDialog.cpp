#include "OptionsDialog.hpp"

#include "Art.hpp"
#include "OptionsLogic.hpp"
#include "ScreenFit.hpp"
#include "Stage.hpp"
#include "StartWindows.hpp"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QPainter>
#include <QPushButton>
#include <QStyleOptionFocusRect>

namespace ordwise {
namespace {

constexpr QSize pictureSize(110, 150);
constexpr int frameGap = 8;

struct Figure {
    const char* name;
    const char* description;
};
constexpr Figure figures[] = {{"&Wizard", "A wizard with a star on his wand"},
                              {"&Owl", "An owl with a scholar's cap"},
                              {"&Robot", "A robot with a sum on its chest"}};

// The words of a control with a key to reach it. e.g. ("Click Notification Enabled", 'k') -> "Clic&k ..."
QString withKey(const std::string& words, char letter) {
    QString text = qstringOf(words);
    return text.insert(text.indexOf(QLatin1Char(letter)), QLatin1Char('&'));
}

}  // namespace

AssistantChoice::AssistantChoice(const std::string& imageKey, const QString& name, QWidget* parent)
    : QRadioButton(name, parent), imageKey_(imageKey) {
    setCursor(Qt::PointingHandCursor);
}

QSize AssistantChoice::sizeHint() const {
    return pictureSize + QSize(2 * frameGap, 3 * frameGap + fontMetrics().height());
}

void AssistantChoice::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor mark = palette().color(QPalette::Highlight);
    const QRectF frame = QRectF(rect()).adjusted(1.5, 1.5, -1.5, -1.5);
    QColor ground = isChecked() ? mark : palette().color(QPalette::Text);
    ground.setAlpha(isChecked() ? 48 : underMouse() ? 24 : 0);
    painter.setBrush(ground);
    painter.setPen(isChecked() ? QPen(mark, 3) : QPen(palette().color(QPalette::Mid), 1));
    painter.drawRoundedRect(frame, 8, 8);
    const QRectF picture(QPointF((width() - pictureSize.width()) / 2.0, frameGap), pictureSize);
    paintArt(painter, imageKey_, picture);
    if (isChecked()) paintArt(painter, "check", QRectF(width() - 32, 6, 26, 26));
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(QRectF(0, picture.bottom() + 2, width(), height() - picture.bottom() - 4),
                     Qt::AlignCenter | Qt::TextShowMnemonic, text());
    if (!hasFocus()) return;
    QStyleOptionFocusRect focus;
    focus.initFrom(this);
    focus.rect = rect().adjusted(4, 4, -4, -4);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
}

OptionsDialog::OptionsDialog(QWidget* parent, Stage& stage)
    : QDialog(parent),
      stage_(stage),
      check3_(checkBoxFor(frmOptions.Check3, 'C')),
      check2_(checkBoxFor(frmOptions.Check2, 'k')),
      combo2_(listFor(frmOptions.Combo2)),
      combo1_(listFor(frmOptions.Combo1)),
      buttons_(new QDialogButtonBox(this)) {
    setObjectName(QStringLiteral("frmOptions"));
    setWindowTitle(qstringOf(frmOptions.Caption));
    auto* settings = new QWidget(this);
    auto* column = new QVBoxLayout(settings);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(10);
    column->addWidget(assistantRow());
    column->addWidget(check3_);
    column->addWidget(check2_);
    auto* lists = new QFormLayout;
    lists->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
    lists->addRow(withKey(frmOptions.Label2.Text, 'S'), combo2_);
    lists->addRow(withKey(frmOptions.Label3.Text, 'N'), combo1_);
    column->addLayout(lists);
    addButtons();
    auto* layout = new QVBoxLayout(this);
    layout->setSpacing(10);
    layout->addWidget(new RoomyScroll(settings, this));
    layout->addWidget(buttons_);
    fitToScreen(*this, sizeHint());
    showSettings();
    for (int number = 1; number <= 3; ++number) {
        if (assistant(number).isChecked()) assistant(number).setFocus();
    }
}

QWidget* OptionsDialog::assistantRow() {
    auto* group = new QGroupBox(qstringOf(frmOptions.Label1.Text), this);
    auto* row = new QHBoxLayout(group);
    row->setSpacing(12);
    for (int number = 1; number <= 3; ++number) {
        const Figure& figure = figures[number - 1];
        auto* choice = new AssistantChoice(frmOptions.wizard(number).Image, QString::fromLatin1(figure.name), group);
        choice->setObjectName(QStringLiteral("Wizard%1").arg(number));
        choice->setAccessibleDescription(QString::fromLatin1(figure.description));
        connect(choice, &QAbstractButton::toggled, this, [number](bool on) {
            if (on) OptionsWizard_Click(number);
        });
        row->addWidget(choice);
        assistants_[static_cast<std::size_t>(number - 1)] = choice;
    }
    return group;
}

QCheckBox* OptionsDialog::checkBoxFor(Control& control, char letter) {
    auto* box = new QCheckBox(withKey(control.Text, letter), this);
    connect(box, &QCheckBox::toggled, this, [&control](bool on) { control.Checked = on; });
    return box;
}

QComboBox* OptionsDialog::listFor(ComboControl& control) {
    auto* list = new QComboBox(this);
    for (const std::string& entry : control.List) list->addItem(qstringOf(entry).trimmed());
    connect(list, &QComboBox::currentIndexChanged, this, [&control](int index) { control.ListIndex = index; });
    return list;
}

void OptionsDialog::addButtons() {
    QPushButton* ok = buttons_->addButton(QDialogButtonBox::Ok);
    ok->setText(qstringOf(frmOptions.Command1.Text));
    buttons_->addButton(QDialogButtonBox::Cancel)->setText(qstringOf(frmOptions.Command2.Text));
    connect(buttons_, &QDialogButtonBox::accepted, this, [this] { stage_.perform(Options_Command1_Click); });
    connect(buttons_, &QDialogButtonBox::rejected, this, &OptionsDialog::reject);
}

void OptionsDialog::showSettings() {
    combo2_->setCurrentIndex(frmOptions.Combo2.ListIndex);
    combo1_->setCurrentIndex(frmOptions.Combo1.ListIndex);
    check3_->setChecked(frmOptions.Check3.Checked);
    check2_->setChecked(frmOptions.Check2.Checked);
    for (int number = 1; number <= 3; ++number) {
        if (frmOptions.wizard(number).Checked) assistant(number).setChecked(true);
    }
}

void OptionsDialog::reject() {
    stage_.perform(Options_Command2_Click);
}

}  // namespace ordwise
