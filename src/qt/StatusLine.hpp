// The sentence in the status bar. A refusal stands out by a picture and bold letters, not by colour
// alone, and is announced; a sentence that is too long ends in dots and is whole in its tool tip.
#pragma once

#include <QWidget>

namespace ordwise {

class StatusLine : public QWidget {
public:
    explicit StatusLine(QWidget* parent);

    void showSentence(const QString& sentence, bool refusal);
    [[nodiscard]] const QString& sentence() const { return sentence_; }
    [[nodiscard]] bool isRefusal() const { return refusal_; }

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString sentence_;
    bool refusal_ = false;
};

}  // namespace ordwise
