// The tree of headings and topics in the windows that offer the catalogue.
#pragma once

#include "ChooserWindow.hpp"

#include <QTreeWidget>

#include <string_view>
#include <vector>

namespace ordwise {

class TopicTree : public QTreeWidget {
public:
    using Nodes = std::vector<ChooserWindow::Node>;

    TopicTree(QWidget* parent, const Nodes& nodes);

    // Shows the nodes that the logic has left in sight, unfolded while something is searched for.
    void showFound(const Nodes& nodes, bool searching);
    // Marks a topic and brings it into view; for "" no topic is marked. Nobody is told.
    void mark(std::string_view topic);

private:
    std::vector<QTreeWidgetItem*> items_;  // as the nodes
};

}  // namespace ordwise
