#include "GraphWindow.hpp"

namespace ordwise {

GraphWindow frmGraph;
GraphSettings graphSettings;

GraphWindow::GraphWindow() {
    FontFace = Face::Sans;
    FontSize = 8.25;

    // clang-format off
    Command1.Text = "Zoom In";                       Command2.Text = "Zoom Out";
    mnuGraphPrint.Text = "&Print";                   mnuGraphPrintSetup.Text = "Print &Setup";
    mnuGraphExit.Text = "&Exit";
    mnuGraphZoomIn.Text = "Zoom &In";                mnuGraphZoomOut.Text = "Zoom Out";
    mnuToggleZoomButtons.Text = "Toggle &Zoom Buttons";
    mnuToggleCoordinates.Text = "Toggle &Coordinates";
    mnuGraphQuadrant.Text = "Toggle &Quadrants";
    mnuGraphHighQuality.Text = "Highest &Quality";   mnuGraphHighSpeed.Text = "Highest &Speed";
    mnuGraphColor.Text = "&Line Color";              mnuGraphGridColor.Text = "&Grid Color";
    mnuGraphDefault.Text = "&Default Colors";
    mnuGraphSmall.Text = "&Small";                   mnuGraphNormal.Text = "&Normal";
    mnuGraphMax.Text = "&Large";
    // clang-format on
}

}  // namespace ordwise
