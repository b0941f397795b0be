// Lets a person watch while the program writes a problem by itself.
#pragma once

#include <QElapsedTimer>
#include <QEventLoop>
#include <QObject>

namespace ordwise {

class Stage;

// Called after each key that is written, it lets the desk show itself for the time of one key. A key
// or a press of the person does not reach the desk meanwhile but ends the watching: the rest is
// written at once. So it is also once a problem has taken as long as anyone likes to watch.
class WritingPause : public QObject {
public:
    void letSee(Stage& stage);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QElapsedTimer problem_;  // since the first key of the problem
    QElapsedTimer lastKey_;
    bool hurried_ = false;
    QEventLoop loop_;
};

}  // namespace ordwise
