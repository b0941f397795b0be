// The pop-up menus of the desk, made from their tables when they are asked for.
#pragma once

class QPoint;
class QWidget;

namespace ordwise {

class Stage;
struct MenuTable;

// Opens the menu at the place, in coordinates of the screen; its choice runs through the stage. Returns
// at once. e.g. showPopUp(lightPopUp(), *this, stage_, event->globalPosition().toPoint())
void showPopUp(const MenuTable& table, QWidget& parent, Stage& stage, const QPoint& place);

}  // namespace ordwise
