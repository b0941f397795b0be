#include "FrameMemory.hpp"

#include <QMainWindow>
#include <QSettings>

namespace ordwise {
namespace {

const QString placeKey = QStringLiteral("Frame/place");
const QString notesKey = QStringLiteral("Frame/notesBesideLines");
const QString steadyKey = QStringLiteral("Frame/steadySignals");
const QString wordsKey = QStringLiteral("Frame/wordsOnButtons");

}  // namespace

FrameMemory::FrameMemory(const QString& folder) {
    if (!folder.isEmpty()) file_ = folder + QStringLiteral("/frame.ini");
}

bool FrameMemory::restorePlace(QMainWindow& frame) const {
    if (file_.isEmpty()) return false;
    return frame.restoreGeometry(QSettings(file_, QSettings::IniFormat).value(placeKey).toByteArray());
}

void FrameMemory::keepPlace(const QMainWindow& frame) const {
    if (!file_.isEmpty()) QSettings(file_, QSettings::IniFormat).setValue(placeKey, frame.saveGeometry());
}

std::optional<bool> FrameMemory::choice(const QString& key) const {
    if (file_.isEmpty()) return std::nullopt;
    const QVariant kept = QSettings(file_, QSettings::IniFormat).value(key);
    return kept.isValid() ? std::optional<bool>(kept.toBool()) : std::nullopt;
}

void FrameMemory::keepChoice(const QString& key, bool on) const {
    if (!file_.isEmpty()) QSettings(file_, QSettings::IniFormat).setValue(key, on);
}

std::optional<bool> FrameMemory::steadySignals() const {
    return choice(steadyKey);
}

void FrameMemory::keepSteadySignals(bool steady) const {
    keepChoice(steadyKey, steady);
}

std::optional<bool> FrameMemory::wordsOnButtons() const {
    return choice(wordsKey);
}

void FrameMemory::keepWordsOnButtons(bool words) const {
    keepChoice(wordsKey, words);
}

bool FrameMemory::notesBesideLines() const {
    return choice(notesKey).value_or(false);
}

void FrameMemory::keepNotesBesideLines(bool wanted) const {
    keepChoice(notesKey, wanted);
}

}  // namespace ordwise
