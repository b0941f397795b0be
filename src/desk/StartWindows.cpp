#include "StartWindows.hpp"

namespace ordwise {

LogoWindow frmLogo;
OptionsWindow frmOptions;
AboutWindow frmAbout;

OptionsWindow::OptionsWindow() {
    Label1.Text = "Choose Assistant Wiz:";
    Wizard1.Image = "wiz1";
    Wizard2.Image = "wiz2";
    Wizard3.Image = "wiz3";
    Check3.Text = "Complex Examples";
    Check2.Text = "Click Notification Enabled";
    Label2.Text = "Step-by-Step Detail:";
    Combo2.List = {"High", "Medium", "Low"};
    Label3.Text = "Number of digits after decimal to round numbers:";
    Combo1.List = {" 1", " 2", " 3", " 4", " 5"};
    Command1.Text = "OK";
    Command2.Text = "Cancel";
}

AboutWindow::AboutWindow() {
    lblTitle.Text = "Ordwise";
    cmdSysInfo.Text = "System Info...";
    Command1.Text = "OK";
}

Control& OptionsWindow::wizard(int number) {
    Control* const wizards[] = {&Wizard1, &Wizard2, &Wizard3};
    if (number < 1 || number > 3) raise(FaultNumber::Subscript);
    return *wizards[number - 1];
}

}  // namespace ordwise
