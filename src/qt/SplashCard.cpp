#include "SplashCard.hpp"

#include "Art.hpp"
#include "Stage.hpp"
#include "StartStop.hpp"
#include "StartWindows.hpp"

#include <QEvent>
#include <QGuiApplication>
#include <QPainter>

namespace ordwise {
namespace {

constexpr QSize cardSize(420, 240);

}  // namespace

SplashCard::SplashCard(QWidget* frame, Stage& stage) : QWidget(frame), stage_(stage) {
    setObjectName(QStringLiteral("frmLogo"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAccessibleName(QStringLiteral("Ordwise"));
    resize(cardSize);
    centre();
    qGuiApp->installEventFilter(this);
    connect(&logotime_, &QTimer::timeout, this, [this] { stage_.tick(logotime_Timer); });
    showChanges();
}

void SplashCard::showChanges() {
    if (frmLogo.logotime.Enabled == logotime_.isActive()) return;
    if (frmLogo.logotime.Enabled) {
        logotime_.start(frmLogo.logotime.Interval);
    } else {
        logotime_.stop();
    }
}

void SplashCard::centre() {
    move((parentWidget()->width() - width()) / 2, (parentWidget()->height() - height()) / 2);
}

bool SplashCard::eventFilter(QObject* watched, QEvent* event) {
    if (watched == parentWidget() && event->type() == QEvent::Resize) centre();
    const bool wanted = event->type() == QEvent::KeyPress || event->type() == QEvent::MouseButtonPress;
    if (wanted && logotime_.isActive()) stage_.tick(logotime_Timer);
    return false;
}

void SplashCard::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(0x8a, 0x6d, 0x2f), 1.5));
    painter.setBrush(QColor(0xff, 0xfb, 0xe4));
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 14, 14);
    paintArt(painter, "ordwise", QRectF(34, 44, 128, 128));
    QFont name = font();
    name.setPointSizeF(30);
    name.setBold(true);
    painter.setFont(name);
    painter.setPen(QColor(0x23, 0x3b, 0x6e));
    painter.drawText(QRectF(184, 64, 220, 54), Qt::AlignLeft | Qt::AlignVCenter, QStringLiteral("Ordwise"));
    painter.setFont(font());
    painter.setPen(QColor(0x40, 0x40, 0x40));
    painter.drawText(QRectF(186, 118, 220, 60), Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap,
                     QStringLiteral("One step a line, and a reason for every step."));
    painter.drawText(QRectF(0, 198, width(), 24), Qt::AlignHCenter | Qt::AlignVCenter,
                     QStringLiteral("Version " ORDWISE_VERSION));
}

}  // namespace ordwise
