#include "WritingPause.hpp"

#include "Stage.hpp"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QTimer>

namespace ordwise {
namespace {

constexpr int keyMilliseconds = 50;
constexpr int longestMilliseconds = 1500;
// Between two keys of one problem the program only computes.
constexpr int gapMilliseconds = 300;

}  // namespace

void WritingPause::letSee(Stage& stage) {
    if (!lastKey_.isValid() || lastKey_.elapsed() > gapMilliseconds) {
        problem_.start();
        hurried_ = false;
    }
    if (!hurried_ && problem_.elapsed() < longestMilliseconds) {
        QCoreApplication::instance()->installEventFilter(this);
        QTimer::singleShot(keyMilliseconds, &loop_, &QEventLoop::quit);
        stage.runDialog([this] { loop_.exec(); });
        QCoreApplication::instance()->removeEventFilter(this);
    }
    lastKey_.start();
}

bool WritingPause::eventFilter(QObject*, QEvent* event) {
    switch (event->type()) {
        case QEvent::KeyPress:
        case QEvent::ShortcutOverride:  // a command's key comes no further than this
            if (static_cast<QKeyEvent*>(event)->isAutoRepeat()) return true;  // of the key that began it
            [[fallthrough]];
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
        case QEvent::TouchBegin:
        case QEvent::Drop:
            hurried_ = true;
            loop_.quit();
            return true;
        case QEvent::Shortcut:
        case QEvent::ContextMenu:
        case QEvent::Wheel: return true;
        default: return false;
    }
}

}  // namespace ordwise
