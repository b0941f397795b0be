// What the frame remembers by itself from one start to the next: its place on the screen and what the
// View menu has switched. It lies beside the recent problems; where there is no place for it, the
// frame starts as a new one.
#pragma once

#include <QString>

#include <optional>

class QMainWindow;

namespace ordwise {

class FrameMemory {
public:
    // `folder` is the platform's for what is remembered, "" for none.
    explicit FrameMemory(const QString& folder);

    // False if there is nothing to restore; a frame that would lie off the screens is brought back.
    bool restorePlace(QMainWindow& frame) const;
    void keepPlace(const QMainWindow& frame) const;

    // What the user chose, if he ever did.
    [[nodiscard]] std::optional<bool> steadySignals() const;
    void keepSteadySignals(bool steady) const;
    [[nodiscard]] std::optional<bool> wordsOnButtons() const;
    void keepWordsOnButtons(bool words) const;
    // Not until the user wishes it.
    [[nodiscard]] bool notesBesideLines() const;
    void keepNotesBesideLines(bool wanted) const;

private:
    [[nodiscard]] std::optional<bool> choice(const QString& key) const;
    void keepChoice(const QString& key, bool on) const;

    QString file_;
};

}  // namespace ordwise
