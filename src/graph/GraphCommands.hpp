// The commands of frmGraph: what its menus, buttons and the mouse do. All but the commands that
// open something redraw the window.
#pragma once

namespace ordwise {

// As the window opens: the start bounds and size, the settings, the equation, the first picture.
void frmGraph_Load();
void frmGraph_Unload();
// After the desktop has written another Width and Height.
void frmGraph_Resize();
// The coordinates under the mouse go to the status line; `x` and `y` are pixels of the plot.
void frmGraph_MouseMove(double x, double y);

void mnuGraphZoomIn_Click();   // also Command1 and the wheel
void mnuGraphZoomOut_Click();  // also Command2 and the wheel
void mnuGraphPrintSetup_Click();
void mnuGraphExit_Click();
void mnuToggleZoomButtons_Click();
void mnuToggleCoordinates_Click();
void mnuGraphQuadrant_Click();
void mnuGraphHighQuality_Click();
void mnuGraphHighSpeed_Click();
void mnuGraphColor_Click();
void mnuGraphGridColor_Click();
void mnuGraphDefault_Click();
void mnuGraphSmall_Click();
void mnuGraphNormal_Click();
void mnuGraphMax_Click();

}  // namespace ordwise
