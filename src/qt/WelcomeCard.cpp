#include "WelcomeCard.hpp"

#include "Art.hpp"
#include "DeskEvents.hpp"

#include <QAction>
#include <QCommandLinkButton>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>

namespace ordwise {
namespace {

constexpr int shadow = 6;
constexpr int leastWidth = 360;

// A way to begin: it takes Enter and shows that it has the keyboard; the arrows go from one to the next.
class Way : public QCommandLinkButton {
public:
    using QCommandLinkButton::QCommandLinkButton;

protected:
    void keyPressEvent(QKeyEvent* event) override {
        switch (event->key()) {
            case Qt::Key_Return:
            case Qt::Key_Enter: click(); break;
            case Qt::Key_Down: focusNextChild(); break;
            case Qt::Key_Up: focusPreviousChild(); break;
            default: QCommandLinkButton::keyPressEvent(event);
        }
    }
    void paintEvent(QPaintEvent* event) override {
        QCommandLinkButton::paintEvent(event);
        if (!hasFocus()) return;
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(QColor(0x1f, 0x5f, 0xc0), 2));
        painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 6, 6);
    }
};

}  // namespace

WelcomeCard::WelcomeCard(QWidget* desk, QAction* newProblem, QAction* load, QAction* practiceTest, QAction* help)
    : QWidget(desk) {
    setObjectName(QStringLiteral("welcome"));
    setAccessibleName(QStringLiteral("Ways to begin"));
    setPalette(QPalette(QColor(0xef, 0xef, 0xef)));  // paper stays light, also on a dark desktop
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 20, 24, 24);
    layout->setSpacing(2);
    auto* title = new QLabel(QStringLiteral("What shall we work on?"), this);
    QFont large = title->font();
    large.setPointSizeF(large.pointSizeF() * 1.5);
    large.setBold(true);
    title->setFont(large);
    layout->addWidget(title);
    layout->addSpacing(8);
    addWay(newProblem, "new", "Choose a topic, type a problem, and see it solved step by step.");
    addWay(load, "open", "Open a problem that you have saved.");
    addWay(practiceTest, "practice", "Make a test to print, with answers if you like.");
    addWay(help, "example", "Take a short tour of the desk.");
    setMinimumWidth(leastWidth);
    desk->installEventFilter(this);
    showChanges();
}

void WelcomeCard::addWay(QAction* action, const char* image, const char* description) {
    // Without the letter that it has in its menu: here the menu bar has taken some of them.
    auto* way = new Way(action->text().remove(QLatin1Char('&')), QString::fromLatin1(description), this);
    way->setIcon(artIcon(image));
    way->setIconSize(QSize(32, 32));
    way->setToolTip(action->shortcut().toString(QKeySequence::NativeText));
    connect(way, &QAbstractButton::clicked, action, &QAction::trigger);
    layout()->addWidget(way);
}

void WelcomeCard::showChanges() {
    if (isHidden() != waysToBeginAreOffered()) return;
    setVisible(waysToBeginAreOffered());
    centre();
    if (!isHidden()) takeKeys();
}

void WelcomeCard::takeKeys() {
    if (auto* first = findChild<QAbstractButton*>(); first != nullptr) first->setFocus(Qt::OtherFocusReason);
}

void WelcomeCard::centre() {
    resize(sizeHint().expandedTo(QSize(leastWidth, 0)) + QSize(0, shadow));
    move((parentWidget()->width() - width()) / 2, (parentWidget()->height() - height()) / 2);
}

bool WelcomeCard::eventFilter(QObject* /*watched*/, QEvent* event) {
    if (event->type() == QEvent::Resize) centre();
    return false;
}

void WelcomeCard::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0x40, 0x28, 0x10, 90));
    painter.drawRoundedRect(QRectF(rect()).adjusted(shadow, shadow, 0, 0), 4, 4);
    painter.setPen(QPen(QColor(0xd8, 0xd2, 0xc0), 1));
    painter.setBrush(QColor(0xff, 0xfe, 0xf8));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -shadow - 0.5, -shadow - 0.5), 4, 4);
}

}  // namespace ordwise
