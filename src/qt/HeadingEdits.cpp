#include "HeadingEdits.hpp"

#include "Art.hpp"
#include "DisplayListPainter.hpp"

#include <QVBoxLayout>

namespace ordwise {

HeadingEdits::HeadingEdits(QWidget* parent, std::array<Control*, 3> lines)
    : QGroupBox(QStringLiteral("Print Heading"), parent) {
    auto* layout = new QVBoxLayout(this);
    for (std::size_t i = 0; i < lines.size(); ++i) {
        auto* edit = new QLineEdit(qstringOf(lines[i]->Text), this);
        QFont face = fontOf(Face::Halvern);
        face.setPointSizeF(font().pointSizeF() + 1);
        edit->setFont(face);
        edit->setObjectName(QStringLiteral("Text%1").arg(i + 1));
        edit->setAccessibleName(QStringLiteral("Line %1 of the heading").arg(i + 1));
        edit->setCursorPosition(0);
        layout->addWidget(edit);
        connect(edit, &QLineEdit::textEdited, this,
                [control = lines[i]](const QString& text) { control->Text = text.toStdString(); });
        edits_[i] = edit;
    }
}

}  // namespace ordwise
