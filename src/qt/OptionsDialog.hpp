// frmOptions: the settings. The three assistants are pictures with a selection mark; nothing is taken
// over before OK.
#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QRadioButton>

#include <array>
#include <string>

class QDialogButtonBox;

namespace ordwise {

class Stage;
struct ComboControl;
struct Control;

// One assistant to choose: the picture with its name below. It is a radio button, so arrow keys and
// screen readers work as people know them.
class AssistantChoice : public QRadioButton {
public:
    AssistantChoice(const std::string& imageKey, const QString& name, QWidget* parent);
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    [[nodiscard]] bool hitButton(const QPoint& place) const override { return rect().contains(place); }

private:
    std::string imageKey_;
};

class OptionsDialog : public QDialog {
public:
    OptionsDialog(QWidget* parent, Stage& stage);

    [[nodiscard]] AssistantChoice& assistant(int number) const {
        return *assistants_[static_cast<std::size_t>(number - 1)];
    }
    [[nodiscard]] QCheckBox& complexExamples() const { return *check3_; }
    [[nodiscard]] QCheckBox& clickNotification() const { return *check2_; }
    [[nodiscard]] QComboBox& detail() const { return *combo2_; }
    [[nodiscard]] QComboBox& digits() const { return *combo1_; }
    [[nodiscard]] QDialogButtonBox& buttons() const { return *buttons_; }

    // Esc and the frame's own button are Cancel.
    void reject() override;

private:
    [[nodiscard]] QWidget* assistantRow();
    [[nodiscard]] QCheckBox* checkBoxFor(Control& control, char letter);
    [[nodiscard]] QComboBox* listFor(ComboControl& control);
    void addButtons();
    void showSettings();

    Stage& stage_;
    std::array<AssistantChoice*, 3> assistants_{};
    QCheckBox* check3_;
    QCheckBox* check2_;
    QComboBox* combo2_;
    QComboBox* combo1_;
    QDialogButtonBox* buttons_;
};

}  // namespace ordwise
