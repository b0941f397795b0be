// "Print Heading": the three lines above what is printed, written in the face that they print in.
#pragma once

#include "Windows.hpp"

#include <QGroupBox>
#include <QLineEdit>

#include <array>

namespace ordwise {

class HeadingEdits : public QGroupBox {
public:
    // What is typed goes into the controls at once.
    HeadingEdits(QWidget* parent, std::array<Control*, 3> lines);

    [[nodiscard]] QLineEdit& line(int number) const { return *edits_[static_cast<std::size_t>(number - 1)]; }

private:
    std::array<QLineEdit*, 3> edits_{};
};

}  // namespace ordwise
